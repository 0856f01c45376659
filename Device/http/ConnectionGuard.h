// Keeps slow clients from occupying all connections of a server.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <list>
#include <mutex>
#include <thread>

namespace Device
{

/// Watches a server's connections. Shuts down those that take too long to send a request and, when
/// there are too many connections, the one that has waited longest for a request. Any thread may
/// use it.
class ConnectionGuard
{
public:
    struct Limits
    {
        std::size_t connections;
        std::chrono::milliseconds headers;  ///< of the first request
        std::chrono::milliseconds body;
        std::chrono::milliseconds idle;  ///< from an answer to the next request's headers
    };

    class Connection;

    explicit ConnectionGuard(const Limits& limits);
    ~ConnectionGuard();
    ConnectionGuard(const ConnectionGuard&) = delete;
    ConnectionGuard& operator=(const ConnectionGuard&) = delete;

    /// A client has connected. The result stays valid until Closed().
    Connection* Opened(int socket);
    /// The headers of a request are complete.
    void StartBody(Connection* connection);
    /// The request is complete; the answer takes as long as it takes.
    void StartAnswer(Connection* connection);
    /// The answer is complete.
    void EndAnswer(Connection* connection);
    /// Call before the socket is closed.
    void Closed(Connection* connection);

private:
    using Clock = std::chrono::steady_clock;

    enum class Phase
    {
        Headers,
        Body,
        Answer,
        ShutDown,
    };

    void Enter(Connection& connection, Phase phase, std::chrono::milliseconds timeout);
    void MakeRoom();
    void Watch();

    const Limits limits_;
    std::mutex mutex_;
    std::condition_variable changed_;
    bool stopped_ = false;
    std::list<Connection> connections_;
    Clock::time_point wakeUp_;  // of the watching thread
    std::thread watch_;
};

class ConnectionGuard::Connection
{
public:
    explicit Connection(int socket) : socket_(socket) {}

private:
    friend class ConnectionGuard;

    void ShutDown();

    const int socket_;
    Phase phase_ = Phase::Headers;
    Clock::time_point since_;
    Clock::time_point deadline_ = Clock::time_point::max();
    std::list<Connection>::iterator place_;
};

}  // namespace Device
