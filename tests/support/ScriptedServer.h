// A loopback server that sends exactly the bytes that a test specifies.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "support/TestCertificate.h"

namespace TestSupport
{

/// What to do with one request.
struct Reply
{
    enum class Then
    {
        KeepOpen,
        Close,
        Reset
    };

    std::string bytes;                   ///< sent unchanged
    Then then = Then::KeepOpen;          ///< afterwards
    std::chrono::milliseconds delay{0};  ///< before the first byte
    std::size_t drip = 0;                ///< bytes sent every 20 ms; 0: all at once
};

/// "HTTP/1.1 <status>" with a length, further header lines (each ending in "\r\n") and a body.
std::string HttpAnswer(int status, const std::string& body = "", const std::string& headers = "");

class ScriptedServer
{
public:
    /// Called with each request (raw text, head and body) and its number from 0, on the
    /// connection's thread.
    using Script = std::function<Reply(const std::string& request, int number)>;

    /// Listens on a free port of 127.0.0.1, with TLS if there is a certificate.
    explicit ScriptedServer(Script script, const TestCertificate* certificate = nullptr);
    ~ScriptedServer();
    ScriptedServer(const ScriptedServer&) = delete;
    ScriptedServer& operator=(const ScriptedServer&) = delete;

    /// "http://127.0.0.1:<port>" or "https://127.0.0.1:<port>".
    [[nodiscard]] std::string Address() const;
    [[nodiscard]] int Connections() const { return connections_; }
    /// Raw texts of the requests so far.
    [[nodiscard]] std::vector<std::string> Requests() const;

private:
    class Channel;

    void Accept();
    void Serve(int socket);
    void Send(Channel& channel, const Reply& reply) const;
    [[nodiscard]] bool Wait(std::chrono::milliseconds time) const;

    const Script script_;
    const TestCertificate* const certificate_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> stopping_{false};
    std::atomic<int> connections_{0};
    mutable std::mutex mutex_;
    std::vector<std::string> requests_;
    std::vector<std::thread> threads_;
    std::thread acceptor_;
};

}  // namespace TestSupport
