// A device made of socket pairs: each connection to it receives a prepared text and ends.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace Fuzz
{

/// One user's connections to a device; none of them leaves the process.
class SocketDevice
{
public:
    /// One text per connection, in order. A connection beyond them receives nothing.
    explicit SocketDevice(std::vector<std::string_view> answers);
    ~SocketDevice();
    SocketDevice(const SocketDevice&) = delete;
    SocketDevice& operator=(const SocketDevice&) = delete;

    /// The bundled SDK's user ID for the device. It is logged out by the destructor.
    [[nodiscard]] int UserID() const { return userID_; }
    [[nodiscard]] std::size_t Connections() const { return sockets_.size(); }
    /// Everything that was sent to the device so far.
    [[nodiscard]] std::string Received() const;

    static constexpr const char* kPassword = "never in the clear";

private:
    int Open();

    std::vector<std::string_view> answers_;
    std::vector<int> sockets_;
    std::vector<std::jthread> senders_;  ///< of answers too long for a socket's buffer
    int userID_ = -1;
};

}  // namespace Fuzz
