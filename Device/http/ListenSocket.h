// A TCP socket that listens.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <utility>

namespace Device
{

/// Owns the socket until it is released.
class ListenSocket
{
public:
    ListenSocket() = default;
    ListenSocket(const ListenSocket&) = delete;
    ListenSocket& operator=(const ListenSocket&) = delete;
    ~ListenSocket();

    /// Listens on a numeric IPv4 or IPv6 address; port 0 means any free port. A port whose
    /// connections have ended can be used again at once. On failure returns false and sets `error`
    /// to a message with the reason.
    bool Open(const std::string& address, std::uint16_t port, std::string& error);

    [[nodiscard]] int Socket() const { return socket_; }
    [[nodiscard]] std::uint16_t Port() const { return port_; }
    void Release() { socket_ = -1; }

private:
    int socket_ = -1;
    std::uint16_t port_ = 0;
};

}  // namespace Device
