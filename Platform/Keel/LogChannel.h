// One log4cxx logger of the platform, used without configuring log4cxx.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>
#include <string>

#include <log4cxx/logger.h>

#include "Keel/CLog.h"

namespace Keel::details
{

/// A logger found by name on first use. It lives as long as the process: the name is a literal, the
/// channel a static object or one that is never destroyed. Never throws.
class LogChannel
{
public:
    constexpr explicit LogChannel(const char* name) noexcept : name_(name) {}
    LogChannel(const LogChannel&) = delete;
    LogChannel& operator=(const LogChannel&) = delete;

    /// Whether a line of this level would be written.
    [[nodiscard]] bool IsEnabled(LogLevel level) const noexcept;

    /// Writes a line if its level is enabled. `message` is UTF-8.
    void Write(LogLevel level, const std::string& message,
               const log4cxx::spi::LocationInfo& location) const noexcept;

    /// The same for a logger given by name.
    [[nodiscard]] static bool IsEnabled(LogLevel level, const std::string& name) noexcept;
    /// The same for a logger given by name.
    static void Write(LogLevel level, const std::string& name, const std::string& message,
                      const log4cxx::spi::LocationInfo& location) noexcept;

private:
    [[nodiscard]] const log4cxx::LoggerPtr* Find() const noexcept;

    const char* name_;
    mutable std::atomic<const log4cxx::LoggerPtr*> logger_{nullptr};
};

}  // namespace Keel::details
