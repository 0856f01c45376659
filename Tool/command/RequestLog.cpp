// One line per request to a served device.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/RequestLog.h"

#include <cstdio>

#include "Tool/terminal/Text.h"

namespace Tool
{

void RequestLog::Begin(const std::string& introduction)
{
    const std::lock_guard lock(mutex_);
    begun_ = true;
    Print(introduction + held_);
    std::fflush(stdout);
    held_.clear();
}

void RequestLog::Write(const Device::ServedRequest& request)
{
    const std::string line = RequestLine(request, paint_) + "\n";
    const std::lock_guard lock(mutex_);
    if (!begun_) {
        held_ += line;
        return;
    }
    Print(line);
    std::fflush(stdout);
}

std::string RequestLine(const Device::ServedRequest& request, const Paint& paint)
{
    const auto tenths = request.duration.count() / 100;
    const std::string status = request.status == 0 ? "no answer" : std::to_string(request.status);
    const bool good = request.status >= 200 && request.status < 300;
    return Padded(Harmless(request.method), 6) + "  " + Padded(Harmless(request.target), 48) +
           "  " + paint(good ? Style::Yes : Style::Bad, status) + "  " +
           std::to_string(request.bytes) + " B  " +
           paint(Style::Faint,
                 std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + " ms");
}

}  // namespace Tool
