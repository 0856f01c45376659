// Keeping the answer that did not fit.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/KeptAnswer.h"

#include <utility>

namespace PelNet
{

const std::shared_ptr<KeptAnswer>& KeptAnswer::OfThisThread()
{
    thread_local const std::shared_ptr<KeptAnswer> slot = std::make_shared<KeptAnswer>();
    return slot;
}

void KeptAnswer::Keep(Content&& content)
{
    const std::lock_guard lock(mutex_);
    content_.emplace(std::move(content));
}

std::optional<KeptAnswer::Content> KeptAnswer::Take(const Session& session,
                                                    const TransportRequest& request,
                                                    std::size_t bufferSize)
{
    const std::lock_guard lock(mutex_);
    std::optional<Content> content = std::exchange(content_, std::nullopt);
    // A buffer that did not grow is a new question: its answer may have changed.
    if (content && (content->session != &session || bufferSize <= content->bufferSize ||
                    content->line != request.line || content->requestBody != request.body)) {
        content.reset();
    }
    return content;
}

void KeptAnswer::Drop(const Session& session)
{
    const std::lock_guard lock(mutex_);
    if (content_ && content_->session == &session) {
        content_.reset();
    }
}

}  // namespace PelNet
