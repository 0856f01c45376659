// One log4cxx logger of the platform, asked and written to without configuring log4cxx.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/LogChannel.h"

#include <memory>

#include <log4cxx/helpers/transcoder.h>
#include <log4cxx/level.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/spi/loggerrepository.h>

namespace Keel::details
{

namespace
{

/// Set once static objects go away: log4cxx, some of whose own are gone by then, can hang.
std::atomic<bool> processEnds{false};

/// Made after what log4cxx has made for itself, so it goes away before that does.
void WatchProcessEnd()
{
    struct Watch
    {
        ~Watch() { processEnds.store(true, std::memory_order_relaxed); }
    };
    static const Watch watch;
    static_cast<void>(watch);
}

/// The repository is asked directly: LogManager::getLogger would look for configuration files in
/// the current directory and configure log4cxx in the client's place.
log4cxx::LoggerPtr FindLogger(const std::string& name)
{
    log4cxx::LogString logString;
    log4cxx::helpers::Transcoder::decodeUTF8(name, logString);
    return log4cxx::LogManager::getLoggerRepository()->getLogger(logString);
}

bool IsLevelOn(const log4cxx::LoggerPtr& logger, LogLevel level)
{
    switch (level) {
        case LogLevel::Error:
            return log4cxx::Logger::isErrorEnabledFor(logger);
        case LogLevel::Info:
            return log4cxx::Logger::isInfoEnabledFor(logger);
        case LogLevel::Debug:
            return log4cxx::Logger::isDebugEnabledFor(logger);
    }
    return false;
}

const log4cxx::LevelPtr& Log4cxxLevel(LogLevel level)
{
    static const log4cxx::LevelPtr error = log4cxx::Level::getError();
    static const log4cxx::LevelPtr info = log4cxx::Level::getInfo();
    static const log4cxx::LevelPtr debug = log4cxx::Level::getDebug();
    return level == LogLevel::Error ? error : level == LogLevel::Info ? info : debug;
}

/// A line that no appender takes makes log4cxx complain on stderr.
bool HasAppender(const log4cxx::LoggerPtr& logger)
{
    for (log4cxx::LoggerPtr at = logger; at; at = at->getParent()) {
        if (!at->getAllAppenders().empty()) {
            return true;
        }
        if (!at->getAdditivity()) {
            return false;
        }
    }
    return false;
}

bool IsWanted(const log4cxx::LoggerPtr& logger, LogLevel level)
{
    return IsLevelOn(logger, level) && HasAppender(logger);
}

void WriteTo(const log4cxx::LoggerPtr& logger, LogLevel level, const std::string& message,
             const log4cxx::spi::LocationInfo& location)
{
    if (!IsWanted(logger, level)) {
        return;
    }
    log4cxx::LogString logString;
    log4cxx::helpers::Transcoder::decodeUTF8(message, logString);
    logger->forcedLogLS(Log4cxxLevel(level), logString, location);
    WatchProcessEnd();
}

bool ProcessEnds()
{
    return processEnds.load(std::memory_order_relaxed);
}

}  // namespace

const log4cxx::LoggerPtr* LogChannel::Logger() const noexcept
try {
    if (ProcessEnds()) {
        return nullptr;
    }
    const log4cxx::LoggerPtr* known = logger_.load(std::memory_order_acquire);
    if (known == nullptr) {
        auto found = std::make_unique<const log4cxx::LoggerPtr>(FindLogger(name_));
        WatchProcessEnd();
        if (logger_.compare_exchange_strong(known, found.get(), std::memory_order_acq_rel)) {
            known = found.release();
        }
    }
    return known;
} catch (...) {
    return nullptr;
}

bool LogChannel::IsEnabled(LogLevel level) const noexcept
try {
    const log4cxx::LoggerPtr* logger = Logger();
    return logger != nullptr && IsWanted(*logger, level);
} catch (...) {
    return false;
}

void LogChannel::Write(LogLevel level, const std::string& message,
                       const log4cxx::spi::LocationInfo& location) const noexcept
try {
    if (const log4cxx::LoggerPtr* logger = Logger()) {
        WriteTo(*logger, level, message, location);
    }
} catch (...) {
    // A line that cannot be written is lost: logging never fails its caller.
}

bool LogChannel::IsEnabled(LogLevel level, const std::string& name) noexcept
try {
    return !ProcessEnds() && IsWanted(FindLogger(name), level);
} catch (...) {
    return false;
}

void LogChannel::Write(LogLevel level, const std::string& name, const std::string& message,
                       const log4cxx::spi::LocationInfo& location) noexcept
try {
    if (!ProcessEnds()) {
        WriteTo(FindLogger(name), level, message, location);
    }
} catch (...) {
    // As above.
}

}  // namespace Keel::details
