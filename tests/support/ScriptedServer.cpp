// The scripted loopback server.
// SPDX-License-Identifier: Apache-2.0
#include "support/ScriptedServer.h"

#include <arpa/inet.h>
#include <openssl/ssl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <utility>

namespace TestSupport
{

namespace
{

using std::chrono::milliseconds;
constexpr milliseconds kTick{20};

/// Whether a byte arrives within a tick.
bool Readable(int socket)
{
    pollfd entry{socket, POLLIN, 0};
    return poll(&entry, 1, static_cast<int>(kTick.count())) > 0;
}

/// Length of the request at the beginning of the text; 0 if it is incomplete.
std::size_t RequestSize(const std::string& text)
{
    const std::size_t end = text.find("\r\n\r\n");
    if (end == std::string::npos) {
        return 0;
    }
    constexpr std::string_view kLength = "\r\nContent-Length: ";
    const std::size_t length = text.substr(0, end).find(kLength);
    const std::size_t body =
        length == std::string::npos
            ? 0
            : std::strtoull(text.c_str() + length + kLength.size(), nullptr, 10);
    return text.size() >= end + 4 + body ? end + 4 + body : 0;
}

}  // namespace

std::string HttpAnswer(int status, const std::string& body, const std::string& headers)
{
    return "HTTP/1.1 " + std::to_string(status) +
           " Scripted\r\nContent-Length: " + std::to_string(body.size()) + "\r\n" + headers +
           "\r\n" + body;
}

/// A socket, plain or with TLS.
class ScriptedServer::Channel
{
public:
    Channel(int socket, const TestCertificate* certificate) : socket_(socket)
    {
        if (certificate != nullptr) {
            ssl_.reset(SSL_new(certificate->Context()));
            SSL_set_fd(ssl_.get(), socket_);
            usable_ = SSL_accept(ssl_.get()) == 1;
            if (!usable_) {
                Drain();
            }
        }
    }
    ~Channel() { close(socket_); }
    Channel(const Channel&) = delete;
    Channel& operator=(const Channel&) = delete;

    [[nodiscard]] bool Usable() const { return usable_; }
    [[nodiscard]] int Socket() const { return socket_; }
    [[nodiscard]] bool Pending() const
    {
        return (ssl_ && SSL_pending(ssl_.get()) > 0) || Readable(socket_);
    }
    long Read(char* bytes, int size) const
    {
        return ssl_ ? SSL_read(ssl_.get(), bytes, size)
                    : recv(socket_, bytes, static_cast<std::size_t>(size), 0);
    }
    [[nodiscard]] bool Write(const char* bytes, std::size_t size) const
    {
        while (size > 0) {
            const long sent = ssl_ ? SSL_write(ssl_.get(), bytes, static_cast<int>(size))
                                   : send(socket_, bytes, size, MSG_NOSIGNAL);
            if (sent <= 0) {
                return false;
            }
            bytes += sent;
            size -= static_cast<std::size_t>(sent);
        }
        return true;
    }
    /// Closing will send a reset instead of an orderly end.
    void ResetOnClose() const
    {
        const linger now{1, 0};
        setsockopt(socket_, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    }

private:
    /// Closed with unread data, the connection would be reset before the client saw the alert.
    void Drain() const
    {
        shutdown(socket_, SHUT_WR);
        std::array<char, 4096> unread;
        while (recv(socket_, unread.data(), unread.size(), 0) > 0) {
        }
    }

    struct Freer
    {
        void operator()(SSL* ssl) const { SSL_free(ssl); }
    };

    const int socket_;
    bool usable_ = true;
    std::unique_ptr<SSL, Freer> ssl_;
};

ScriptedServer::ScriptedServer(Script script, const TestCertificate* certificate)
    : script_(std::move(script)),
      certificate_(certificate),
      listener_(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    // SSL_write has no MSG_NOSIGNAL, and some tests are about clients that hang up.
    std::signal(SIGPIPE, SIG_IGN);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(listener_, generic, size) != 0 || listen(listener_, 128) != 0 ||
        getsockname(listener_, generic, &size) != 0) {
        throw std::runtime_error("no free port on the loopback interface");
    }
    port_ = ntohs(address.sin_port);
    acceptor_ = std::thread([this] { Accept(); });
}

ScriptedServer::~ScriptedServer()
{
    stopping_ = true;
    acceptor_.join();
    for (std::thread& thread : threads_) {
        thread.join();
    }
    close(listener_);
}

std::string ScriptedServer::Address() const
{
    return (certificate_ != nullptr ? "https://127.0.0.1:" : "http://127.0.0.1:") +
           std::to_string(port_);
}

std::vector<std::string> ScriptedServer::Requests() const
{
    const std::lock_guard lock(mutex_);
    return requests_;
}

void ScriptedServer::Accept()
{
    while (!stopping_) {
        if (!Readable(listener_)) {
            continue;
        }
        const int socket = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket >= 0) {
            const timeval limit{5, 0};
            setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
            setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
            ++connections_;
            threads_.emplace_back([this, socket] { Serve(socket); });
        }
    }
}

void ScriptedServer::Serve(int socket)
{
    Channel channel(socket, certificate_);
    std::string text;
    std::vector<char> part(64 * 1024);
    while (channel.Usable() && !stopping_) {
        if (!channel.Pending()) {
            continue;
        }
        const long count = channel.Read(part.data(), static_cast<int>(part.size()));
        if (count <= 0) {
            return;
        }
        text.append(part.data(), static_cast<std::size_t>(count));
        while (const std::size_t size = RequestSize(text)) {
            const std::string request = text.substr(0, size);
            text.erase(0, size);
            int number = 0;
            {
                const std::lock_guard lock(mutex_);
                number = static_cast<int>(requests_.size());
                requests_.push_back(request);
            }
            const Reply reply = script_(request, number);
            Send(channel, reply);
            if (reply.then == Reply::Then::Reset) {
                channel.ResetOnClose();
            }
            if (reply.then != Reply::Then::KeepOpen) {
                return;
            }
        }
    }
}

void ScriptedServer::Send(Channel& channel, const Reply& reply) const
{
    if (!Wait(reply.delay)) {
        return;
    }
    const std::size_t step = reply.drip == 0 ? reply.bytes.size() : reply.drip;
    for (std::size_t at = 0; at < reply.bytes.size(); at += step) {
        if (!channel.Write(reply.bytes.data() + at, std::min(step, reply.bytes.size() - at)) ||
            (reply.drip > 0 && !Wait(kTick))) {
            return;
        }
    }
}

/// False if the server stops meanwhile.
bool ScriptedServer::Wait(milliseconds time) const
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (!stopping_ && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(std::min(kTick, time));
    }
    return !stopping_;
}

}  // namespace TestSupport
