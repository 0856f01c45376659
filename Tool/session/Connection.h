// Reaching a device: its address, the user's password, the session.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <string>

namespace Tool
{

/// A device as people write it, taken apart.
struct Address
{
    std::string address;  ///< as the SDK takes it: no user, no trailing slash
    std::string user;     ///< empty: none was named
};

/// Takes "sim:dome", "http://host", "https://user@[::1]:8443" apart. Throws a usage failure for
/// anything else, and for a password in the address, which is never repeated.
Address ParseAddress(const std::string& text);

/// How to reach a device; the fields are the options of the same names.
struct ConnectionOptions
{
    std::string device;
    std::string user;
    std::string ca;
    bool insecure = false;
    std::chrono::duration<double> timeout{0};         ///< 0: the SDK's default
    std::chrono::duration<double> connectTimeout{0};  ///< 0: the SDK's default
};

/// A device that is logged in as long as the object lives.
class Session
{
public:
    /// Throws a failure that says why the device cannot be logged in.
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
