// One request and its answer in the device's server.
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

#include "Device/http/ServerFaults.h"
#include "Device/message/Message.h"

namespace Device
{

/// Lets threads wait until a time has passed or the server stops.
class StopSignal
{
public:
    void Stop();
    [[nodiscard]] bool Stopped() const { return stopped_; }

    /// Returns false if the server has stopped.
    bool Wait(std::chrono::milliseconds time);

private:
    std::mutex mutex_;
    std::condition_variable changed_;
    std::atomic<bool> stopped_ = false;
};

/// The body of an answer, as far as its faults let it through.
class AnswerBody
{
public:
    /// `socket` shows whether the client is still connected.
    AnswerBody(Response response, FaultPlan plan, StopSignal& stop, int socket);

    [[nodiscard]] std::uint64_t AnnouncedSize() const { return size_ + plan_.padding; }
    [[nodiscard]] std::uint64_t Sent() const { return sent_; }

    /// Writes the bytes from `position` on and returns how many, or -1 to end the connection.
    std::int64_t Read(std::uint64_t position, char* buffer, size_t size);

private:
    void Stall() const;
    /// How many bytes may be sent next; -1: no more.
    std::int64_t Allowed(std::uint64_t position, size_t size);

    const std::string body_;
    const std::shared_ptr<BodySource> source_;
    const std::uint64_t size_;  ///< without padding
    FaultPlan plan_;
    StopSignal& stop_;
    const int socket_;
    std::uint64_t sent_ = 0;
};

/// A request while it is received and answered.
struct Exchange
{
    explicit Exchange(std::string rawTarget) : uri(std::move(rawTarget)) {}

    std::string uri;  ///< the target as in the request line
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

/// Percent-decodes the path and keeps the query. An encoded question mark stays encoded because it
/// belongs to the path.
std::string DecodeTarget(const std::string& uri);

}  // namespace Device
