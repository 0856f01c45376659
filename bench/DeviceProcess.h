// A simulated device served over HTTP by a separate process, so that only the client is measured.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include <sys/types.h>

#include "Device/http/DeviceServer.h"

namespace Bench
{

/// Lives as long as the object. Create it before any thread: it forks.
class DeviceProcess
{
public:
    /// Serves a profile on the loopback; null if that fails.
    static std::unique_ptr<DeviceProcess> Start(const std::string& profile,
                                                Device::ServerOptions options);
    ~DeviceProcess();
    DeviceProcess(const DeviceProcess&) = delete;
    DeviceProcess& operator=(const DeviceProcess&) = delete;

    [[nodiscard]] const std::string& Url() const { return url_; }
    [[nodiscard]] const std::string& Password() const { return password_; }
    /// PEM file of the device's certificate; empty without TLS.
    [[nodiscard]] const std::string& CertificateFile() const { return certificateFile_; }
    [[nodiscard]] pid_t Pid() const { return pid_; }

    static constexpr const char* kUser = "admin";

private:
    DeviceProcess() = default;
    bool Hear(int from);

    pid_t pid_ = -1;
    int lifeline_ = -1;  ///< the device ends when this is closed
    std::string url_;
    std::string password_;
    std::string certificateFile_;
};

/// Resident memory of a process in bytes; 0 if unknown.
std::size_t ResidentBytes(pid_t process);

}  // namespace Bench
