// Reaching a device: address, password, session.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <string>

#include "PelNetSDK/Login.h"

namespace Tool
{

/// The parts of a device's address.
struct Address
{
    std::string address;  ///< as the SDK takes it: no user, no trailing slash
    std::string user;     ///< empty: none was named
};

/// Splits "sim:dome", "http://host" or "https://user@[::1]:8443". Throws a usage failure for
/// anything else, and for an address with a password, without repeating it.
Address ParseAddress(const std::string& text);

/// How to reach a device, as given by the options of the same names.
struct ConnectionOptions
{
    std::string device;
    std::string user;
    std::string ca;
    bool insecure = false;
    std::chrono::duration<double> timeout =
        std::chrono::milliseconds(NET_ORB_DEFAULT_RECEIVE_TIMEOUT);
    std::chrono::duration<double> connectTimeout =
        std::chrono::milliseconds(NET_ORB_DEFAULT_CONNECT_TIMEOUT);
};

/// A login, as long as the object lives.
class Session
{
public:
    /// Throws a failure if the login fails.
    explicit Session(const ConnectionOptions& options);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    [[nodiscard]] int UserID() const { return userID_; }
    /// The device's address without the user.
    [[nodiscard]] const std::string& Device() const { return device_; }

private:
    std::string device_;
    int userID_ = -1;
};

/// A duration as the SDK takes it.
unsigned int Milliseconds(std::chrono::duration<double> time);

}  // namespace Tool
