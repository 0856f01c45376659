// Logged-in devices and their user IDs.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "PelNetSDK/KeptAnswer.h"
#include "PelNetSDK/Limits.h"
#include "PelNetSDK/Transport.h"

namespace PelNet
{

/// One logged-in device. Calls hold a shared pointer, so a session outlives its logout while they
/// run.
class Session
{
public:
    explicit Session(std::unique_ptr<Transport> transport) : transport_(std::move(transport)) {}

    /// As Transport::Exchange.
    unsigned Exchange(const TransportRequest& request, TransportAnswer& answer)
    {
        return transport_->Exchange(request, answer);
    }

    /// Keeps an answer for the calling thread until it asks again, ends, or the session closes.
    void Keep(KeptAnswer::Content&& content);

    /// The protocol's number of an SDK channel, if the device has told it.
    [[nodiscard]] std::optional<int> KnownChannel(int channel, int mode) const;
    void LearnChannel(int channel, int mode, int number);

    /// Cancels running requests and forgets every kept answer.
    void Close() noexcept;

private:
    const std::unique_ptr<Transport> transport_;
    mutable std::mutex mutex_;
    bool closed_ = false;
    std::vector<std::weak_ptr<KeptAnswer>> slots_;
    std::map<std::pair<int, int>, int> channels_;
};

/// The sessions by user ID. All members may be called from any thread.
class SessionTable
{
public:
    static constexpr int kCapacity = limits::kUsers;

    /// The table of the process. It is never destroyed: threads may still call at exit.
    static SessionTable& Instance();

    /// The user ID, or -1 if all are in use. An ID that was given back is reused as late as
    /// possible.
    int Add(std::shared_ptr<Session> session);
    [[nodiscard]] bool Full() const;
    /// Null if the ID is not logged in.
    [[nodiscard]] std::shared_ptr<Session> Find(int userID) const;
    std::shared_ptr<Session> Remove(int userID);

private:
    SessionTable();

    mutable std::mutex mutex_;
    std::array<std::shared_ptr<Session>, kCapacity> sessions_;
    // Free IDs in a ring: returned at the end, taken from the front.
    std::array<int, kCapacity> free_{};
    std::size_t firstFree_ = 0;
    std::size_t freeCount_ = kCapacity;
};

}  // namespace PelNet
