// Opens a socket that listens.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/ListenSocket.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

namespace Device
{
namespace
{

struct Address
{
    Address(const std::string& text, std::uint16_t port)
    {
        auto* v4 = reinterpret_cast<sockaddr_in*>(&storage);
        auto* v6 = reinterpret_cast<sockaddr_in6*>(&storage);
        if (inet_pton(AF_INET, text.c_str(), &v4->sin_addr) == 1) {
            v4->sin_family = AF_INET;
            v4->sin_port = htons(port);
            length = sizeof *v4;
        } else if (inet_pton(AF_INET6, text.c_str(), &v6->sin6_addr) == 1) {
            v6->sin6_family = AF_INET6;
            v6->sin6_port = htons(port);
            length = sizeof *v6;
        }
    }

    [[nodiscard]] sockaddr* Pointer() { return reinterpret_cast<sockaddr*>(&storage); }
    [[nodiscard]] std::uint16_t Port() const
    {
        return ntohs(storage.ss_family == AF_INET6
                         ? reinterpret_cast<const sockaddr_in6*>(&storage)->sin6_port
                         : reinterpret_cast<const sockaddr_in*>(&storage)->sin_port);
    }

    sockaddr_storage storage{};
    socklen_t length = 0;  // 0: the text is not numeric
};

std::string Reason(int error)
{
    switch (error) {
        case EADDRINUSE:
            return "another program is using this port";
        case EACCES:
            return "this port needs privileges";
        case EADDRNOTAVAIL:
            return "this machine does not have this address";
        default:
            return std::generic_category().message(error);
    }
}

bool SetOption(int socket, int level, int option)
{
    const int on = 1;
    return setsockopt(socket, level, option, &on, sizeof on) == 0;
}

}  // namespace

ListenSocket::~ListenSocket()
{
    if (socket_ >= 0) {
        close(socket_);
    }
}

bool ListenSocket::Open(const std::string& address, std::uint16_t port, std::string& error)
{
    Address bound(address, port);
    if (bound.length == 0) {
        error = "\"" + address + "\" is not a numeric address";
        return false;
    }
    const bool v6 = bound.storage.ss_family == AF_INET6;
    socket_ = socket(bound.storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    // SO_REUSEADDR ignores ended connections in TIME_WAIT, but not another listener.
    if (socket_ < 0 || !SetOption(socket_, SOL_SOCKET, SO_REUSEADDR) ||
        (v6 && !SetOption(socket_, IPPROTO_IPV6, IPV6_V6ONLY)) ||
        bind(socket_, bound.Pointer(), bound.length) != 0 || listen(socket_, SOMAXCONN) != 0 ||
        getsockname(socket_, bound.Pointer(), &bound.length) != 0) {
        error =
            "cannot listen on " + address + " port " + std::to_string(port) + ": " + Reason(errno);
        return false;
    }
    port_ = bound.Port();
    return true;
}

}  // namespace Device
