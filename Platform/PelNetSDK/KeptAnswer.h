// The answer that did not fit, kept for the thread that will ask again with a larger buffer.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "PelNetSDK/Exchange.h"

namespace PelNet
{

class Session;

/// At most one answer. The slot belongs to its thread; the session whose answer it holds clears it
/// at logout, hence the lock.
class KeptAnswer
{
public:
    struct Content
    {
        const Session* session = nullptr;
        RequestLine line = {};
        std::string requestBody = {};
        std::size_t bufferSize = 0;      ///< the buffer it did not fit
        std::optional<AnswerBody> body;  ///< nothing: larger than `limit`, and not kept
        std::size_t limit = 0;           ///< of the exchange that brought it
        std::size_t size = 0;            ///< the buffer it would fit; 0: unknown
    };

    /// The calling thread's slot.
    static const std::shared_ptr<KeptAnswer>& OfThisThread();

    void Keep(Content&& content);
    /// What was kept, if this is the same request with a larger buffer. Whatever was kept is gone
    /// afterwards.
    std::optional<Content> Take(const Session& session, const TransportRequest& request,
                                std::size_t bufferSize);
    /// Forgets an answer of this session.
    void Drop(const Session& session);

private:
    std::mutex mutex_;
    std::optional<Content> content_;
};

}  // namespace PelNet
