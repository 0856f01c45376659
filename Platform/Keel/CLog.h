// The logger of the client: lines with a tag, a message and the place they come from.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <log4cxx/spi/location/locationinfo.h>

#include "Keel/CSingleton.h"
#include "Keel/Export.h"

namespace Keel::details
{

/// Levels of a log line, most severe first.
enum class LogLevel
{
    Error,
    Info,
    Debug,
};

/// Writes log lines through log4cxx. A tag is the name of a log4cxx logger; the empty tag is the
/// logger "Keel". Messages are UTF-8. While the client has not configured log4cxx nothing is
/// written anywhere and log4cxx is not made to look for a configuration; the same holds where no
/// appender takes a line, and once static objects of the process are destroyed. All members may be
/// called from any thread and throw nothing; a line that cannot be written is lost.
/// Reached through CSingleton<CLog>::Instance().
class KEEL_API CLog
{
public:
    CLog();
    ~CLog();
    CLog(const CLog&) = delete;
    CLog& operator=(const CLog&) = delete;

    void Error(const std::string& tag, const std::string& message,
               const log4cxx::spi::LocationInfo& location);
    void Info(const std::string& tag, const std::string& message,
              const log4cxx::spi::LocationInfo& location);
    void Debug(const std::string& tag, const std::string& message,
               const log4cxx::spi::LocationInfo& location);

    /// Whether a line of this level would be written: ask before an expensive message is made.
    [[nodiscard]] bool IsEnabled(LogLevel level, const std::string& tag = {}) const;

private:
    struct Loggers;
    std::unique_ptr<Loggers> loggers_;
};

}  // namespace Keel::details
