// Bodies that drip, end early or grow; decoding of targets.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/ServerExchange.h"

#include <poll.h>

#include <algorithm>
#include <cstring>
#include <utility>

#include "Device/document/Text.h"

namespace Device
{

void StopSignal::Stop()
{
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    changed_.notify_all();
}

bool StopSignal::Wait(std::chrono::milliseconds time)
{
    // Very long times would overflow the clock.
    constexpr std::chrono::milliseconds kLongest = std::chrono::hours(24);
    std::unique_lock lock(mutex_);
    return !changed_.wait_for(lock, std::min(time, kLongest), [this] { return stopped_.load(); });
}

AnswerBody::AnswerBody(Response response, FaultPlan plan, StopSignal& stop, int socket)
    : body_(std::move(response.body)),
      source_(std::move(response.source)),
      size_(source_ ? source_->Size() : body_.size()),
      plan_(std::move(plan)),
      stop_(stop),
      socket_(socket)
{
}

// Watches the client, so that a stalled answer does not outlive it and keep its thread.
void AnswerBody::Stall() const
{
    constexpr std::chrono::milliseconds kLook{100};
    const auto start = std::chrono::steady_clock::now();
    pollfd client{socket_, POLLRDHUP, 0};
    while (plan_.stallTime.count() == 0 ||
           std::chrono::steady_clock::now() - start < plan_.stallTime) {
        if (!stop_.Wait(kLook) || poll(&client, 1, 0) > 0) {
            return;
        }
    }
}

std::int64_t AnswerBody::Allowed(std::uint64_t position, size_t size)
{
    std::uint64_t count = std::min<std::uint64_t>(size, AnnouncedSize() - position);
    if (plan_.dripBytes > 0) {
        if (position > 0) {
            plan_.Strike(FaultKind::Drip);
            if (!stop_.Wait(plan_.dripInterval)) {
                return -1;
            }
        }
        count = std::min(count, plan_.dripBytes);
    }
    if (plan_.truncateAt) {
        if (position >= *plan_.truncateAt) {
            plan_.Strike(FaultKind::Truncate);
            return -1;
        }
        count = std::min(count, *plan_.truncateAt - position);
    }
    if (plan_.stallAt) {
        if (position >= *plan_.stallAt) {
            plan_.Strike(FaultKind::Stall);
            Stall();
            return -1;
        }
        count = std::min(count, *plan_.stallAt - position);
    }
    return static_cast<std::int64_t>(count);
}

std::int64_t AnswerBody::Read(std::uint64_t position, char* buffer, size_t size)
{
    const std::int64_t allowed = stop_.Stopped() ? -1 : Allowed(position, size);
    if (allowed < 0) {
        return -1;
    }
    auto count = static_cast<std::uint64_t>(allowed);
    if (position < size_) {
        // The server reads each byte once and in order, as a source requires.
        count = std::min<std::uint64_t>(count, size_ - position);
        if (source_) {
            count = source_->Read(buffer, count);
        } else {
            std::memcpy(buffer, body_.data() + position, count);
        }
    } else {
        plan_.Strike(FaultKind::Oversize);
        std::memset(buffer, ' ', count);
    }
    sent_ = position + count;
    return static_cast<std::int64_t>(count);
}

std::string DecodeTarget(const std::string& uri)
{
    const size_t query = std::min(uri.find('?'), uri.size());
    std::string path = UndoPercentEncoding(std::string_view(uri).substr(0, query));
    for (size_t at = 0; (at = path.find('?', at)) != std::string::npos; at += 3) {
        path.replace(at, 1, "%3F");
    }
    return path + uri.substr(query);
}

}  // namespace Device
