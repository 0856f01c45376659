// One line per request to a served device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <mutex>
#include <string>

#include "Device/http/DeviceServer.h"
#include "Tool/terminal/Terminal.h"

namespace Tool
{

/// Writes each line immediately, also to a pipe. Any thread may use it.
class RequestLog
{
public:
    explicit RequestLog(const Paint& paint) : paint_(paint) {}

    /// Writes the introduction, before any request.
    void Begin(const std::string& introduction);
    void Write(const Device::ServedRequest& request);

private:
    const Paint paint_;
    std::mutex mutex_;
    bool begun_ = false;
    std::string held_;  ///< lines of requests that came before the introduction
};

/// "GET     /TARN/System/status  200  1234 B  2.5 ms".
std::string RequestLine(const Device::ServedRequest& request, const Paint& paint);

}  // namespace Tool
