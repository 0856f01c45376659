// The answer that did not fit, kept for the thread that will ask again with a larger buffer.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "PelNetSDK/Transport.h"

namespace PelNet
{

class Session;

/// One answer at most. The slot belongs to its thread; the session whose answer it holds clears
/// it at logout, hence the lock.
class KeptAnswer
{
public:
    /// The calling thread's slot.
    static const std::shared_ptr<KeptAnswer>& OfThisThread();

    void Keep(const Session& session, const TransportRequest& request, std::size_t bufferSize,
              AnswerBody&& body);
    /// The answer when this very request is repeated with a larger buffer than before. Whatever
    /// was kept is gone afterwards.
    std::optional<AnswerBody> Take(const Session& session, const TransportRequest& request,
                                   std::size_t bufferSize);
    /// Forgets an answer of this session.
    void Drop(const Session& session);

private:
    struct Content
    {
        const Session* session;
        RequestLine line;
        std::string requestBody;
        std::size_t bufferSize;
        AnswerBody body;
    };

    std::mutex mutex_;
    std::optional<Content> content_;
};

}  // namespace PelNet
