// Keeps slow clients from occupying all connections of a server.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/ConnectionGuard.h"

#include <sys/socket.h>

#include <algorithm>

namespace Device
{

// The server's thread of the connection wakes up, sees the end and closes the socket.
void ConnectionGuard::Connection::ShutDown()
{
    shutdown(socket_, SHUT_RDWR);
    phase_ = Phase::ShutDown;
    deadline_ = Clock::time_point::max();
}

ConnectionGuard::ConnectionGuard(const Limits& limits)
    : limits_(limits), watch_([this] { Watch(); })
{
}

ConnectionGuard::~ConnectionGuard()
{
    {
        const std::lock_guard lock(mutex_);
        stopped_ = true;
    }
    changed_.notify_all();
    watch_.join();
}

ConnectionGuard::Connection* ConnectionGuard::Opened(int socket)
{
    const std::lock_guard lock(mutex_);
    MakeRoom();
    Connection& connection = connections_.emplace_back(socket);
    connection.place_ = std::prev(connections_.end());
    Enter(connection, Phase::Headers, limits_.headers);
    return &connection;
}

void ConnectionGuard::StartBody(Connection* connection)
{
    const std::lock_guard lock(mutex_);
    Enter(*connection, Phase::Body, limits_.body);
}

void ConnectionGuard::StartAnswer(Connection* connection)
{
    const std::lock_guard lock(mutex_);
    Enter(*connection, Phase::Answer, std::chrono::milliseconds::max());
}

void ConnectionGuard::EndAnswer(Connection* connection)
{
    const std::lock_guard lock(mutex_);
    Enter(*connection, Phase::Headers, limits_.idle);
}

void ConnectionGuard::Closed(Connection* connection)
{
    const std::lock_guard lock(mutex_);
    connections_.erase(connection->place_);
}

void ConnectionGuard::Enter(Connection& connection, Phase phase, std::chrono::milliseconds timeout)
{
    if (connection.phase_ == Phase::ShutDown) {
        return;
    }
    connection.phase_ = phase;
    connection.since_ = Clock::now();
    connection.deadline_ = timeout == std::chrono::milliseconds::max()
                               ? Clock::time_point::max()
                               : connection.since_ + timeout;
    if (connection.deadline_ < wakeUp_) {
        changed_.notify_all();
    }
}

void ConnectionGuard::MakeRoom()
{
    const auto open = [](const Connection& each) { return each.phase_ != Phase::ShutDown; };
    if (static_cast<std::size_t>(std::ranges::count_if(connections_, open)) < limits_.connections) {
        return;
    }
    Connection* longest = nullptr;
    for (Connection& each : connections_) {
        if (each.phase_ == Phase::Headers &&
            (longest == nullptr || each.since_ < longest->since_)) {
            longest = &each;
        }
    }
    if (longest != nullptr) {
        longest->ShutDown();
    }
}

void ConnectionGuard::Watch()
{
    std::unique_lock lock(mutex_);
    while (!stopped_) {
        const Clock::time_point now = Clock::now();
        // Waiting until time_point::max() would overflow.
        wakeUp_ = now + std::chrono::hours(1);
        for (Connection& each : connections_) {
            if (each.deadline_ <= now) {
                each.ShutDown();
            }
            wakeUp_ = std::min(wakeUp_, each.deadline_);
        }
        changed_.wait_until(lock, wakeUp_);
    }
}

}  // namespace Device
