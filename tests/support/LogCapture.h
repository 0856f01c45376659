// Collects log lines during its lifetime.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace TestSupport
{

struct LogLine
{
    std::string level;   ///< "ERROR"
    std::string logger;  ///< "Keel"
    std::string message;
    std::string file;
    std::string function;  ///< "CapabilitySet::BasicCapability::GetBasicCapability"
    int line = 0;
};

/// Replaces log4cxx's configuration: all lines come here and go nowhere else.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    /// All lines of a logger so far.
    [[nodiscard]] std::vector<LogLine> Lines(const std::string& logger = "Keel") const;
    /// Their messages.
    [[nodiscard]] std::vector<std::string> Messages(const std::string& logger = "Keel") const;
    void Clear();

private:
    class Appender;
    std::shared_ptr<Appender> appender_;
};

}  // namespace TestSupport
