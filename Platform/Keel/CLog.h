// The client's logger: lines with a tag, a message and a source location.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <log4cxx/spi/location/locationinfo.h>

#include "Keel/CSingleton.h"
#include "Keel/Export.h"

namespace Keel::details
{

/// Level of a log line, most severe first.
enum class LogLevel
{
    Error,  ///< an operation failed
    Info,   ///< what an operation does
    Debug,  ///< traces for developers
};

/// Writes log lines through log4cxx. A tag is the name of a log4cxx logger; the empty tag means the
/// logger "Keel". Messages are UTF-8.
///
/// Nothing is written until the client configures log4cxx, where no appender takes a line, or once
/// the static objects of the process are being destroyed. log4cxx is never made to look for a
/// configuration. Members may be called from any thread and never throw; a line that cannot be
/// written is lost. Use CSingleton<CLog>::Instance().
class KEEL_API CLog
{
public:
    /// For CSingleton.
    CLog();
    ~CLog();
    CLog(const CLog&) = delete;
    CLog& operator=(const CLog&) = delete;

    /// Writes one line at error level.
    void Error(const std::string& tag, const std::string& message,
               const log4cxx::spi::LocationInfo& location);
    /// Writes one line at info level.
    void Info(const std::string& tag, const std::string& message,
              const log4cxx::spi::LocationInfo& location);
    /// Writes one line at debug level.
    void Debug(const std::string& tag, const std::string& message,
               const log4cxx::spi::LocationInfo& location);

    /// Whether a line of this level would be written. Check before building an expensive message.
    [[nodiscard]] bool IsEnabled(LogLevel level, const std::string& tag = {}) const;

private:
    struct Loggers;
    std::unique_ptr<Loggers> loggers_;
};

}  // namespace Keel::details
