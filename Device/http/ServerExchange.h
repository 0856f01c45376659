// One request and its answer on their way through the device's server.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "Device/DeviceModel.h"
#include "Device/http/ServerFaults.h"

namespace Device
{

/// Lets threads wait until either a time has passed or the server stops.
class StopSignal
{
public:
    void Stop();
    [[nodiscard]] bool Stopped() const { return stopped_; }

    /// False when the server stopped meanwhile.
    bool Wait(std::chrono::milliseconds time);

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::atomic<bool> stopped_ = false;
};

/// The body of one answer as its faults let it out.
class AnswerBody
{
public:
    /// `socket` tells whether the client is still there.
    AnswerBody(Response response, FaultPlan plan, StopSignal& stop, int socket);

    [[nodiscard]] std::uint64_t AnnouncedSize() const { return size_ + plan_.padding; }
    [[nodiscard]] std::uint64_t Sent() const { return sent_; }

    /// Writes the next bytes from `position` on; returns their number, or -1 to break the
    /// connection off.
    std::int64_t Read(std::uint64_t position, char* buffer, size_t size);

private:
    void Stall() const;
    /// How many bytes may come next; -1: none ever.
    std::int64_t Allowed(std::uint64_t position, size_t size);

    const std::string body_;
    const std::shared_ptr<BodySource> source_;
    const std::uint64_t size_;  ///< without padding
    FaultPlan plan_;
    StopSignal& stop_;
    const int socket_;
    std::uint64_t sent_ = 0;
};

/// What the server keeps of a request while it arrives and is answered.
struct Exchange
{
    explicit Exchange(std::string rawTarget) : uri(std::move(rawTarget)) {}

    std::string uri;  ///< as it stood in the request line
    std::string method;
    bool begun = false;
    bool authorized = false;
    bool stale = false;
    bool tooLarge = false;
    std::string body;
    std::uint64_t received = 0;
    std::unique_ptr<AnswerBody> answer;
    int status = 0;
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

/// The path with percent-encoding undone and the query as it stands. An encoded question mark
/// stays encoded, since it belongs to the path.
std::string DecodeTarget(const std::string& uri);

}  // namespace Device
