// Writing to a log4cxx logger without configuring log4cxx.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/LogChannel.h"

#if defined(__unix__)
#include <dlfcn.h>
#endif

#include <memory>

#include <log4cxx/helpers/class.h>
#include <log4cxx/helpers/transcoder.h>
#include <log4cxx/level.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/spi/hierarchyeventlistener.h>
#include <log4cxx/spi/loggerrepository.h>

namespace Keel::details
{

namespace
{

/// Set once static objects are destroyed. log4cxx can hang when some of its own are gone.
std::atomic<bool> processEnds{false};

/// Its static instances are created after log4cxx's statics, so they are destroyed before them.
struct ProcessEndWatch
{
    ProcessEndWatch() = default;
    ~ProcessEndWatch() { processEnds.store(true, std::memory_order_relaxed); }
    ProcessEndWatch(const ProcessEndWatch&) = delete;
    ProcessEndWatch& operator=(const ProcessEndWatch&) = delete;
};

/// Set once any logger has, or had, an appender. Until then a log line costs one look here.
std::atomic<bool> anyAppender{false};

class AppenderWatch : public log4cxx::spi::HierarchyEventListener
{
public:
    [[nodiscard]] const log4cxx::helpers::Class& getClass() const override
    {
        return log4cxx::helpers::Object::getStaticClass();
    }
    [[nodiscard]] bool instanceof (const log4cxx::helpers::Class& other) const override
    {
        return &other == &getClass();
    }
    [[nodiscard]] const void* cast(const log4cxx::helpers::Class& other) const override
    {
        return instanceof (other) ? static_cast<const log4cxx::helpers::Object*>(this) : nullptr;
    }

    void addAppenderEvent(const log4cxx::Logger*, const log4cxx::Appender*) override
    {
        anyAppender.store(true, std::memory_order_relaxed);
    }
    void removeAppenderEvent(const log4cxx::Logger*, const log4cxx::Appender*) override {}
};

/// Keeps the module that holds this code in the process, even if a client unloads it.
void StayLoaded()
{
#if defined(__unix__)
    Dl_info here{};
    if (dladdr(&anyAppender, &here) != 0) {
        dlopen(here.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
    }
#endif
}

/// False while no line can reach anyone: nothing is configured yet, or the process is ending.
bool IsAnyoneListening()
{
    static const bool isWatching = [] {
        // log4cxx calls the watch until the process ends and offers no way to remove it.
        StayLoaded();
        const auto repository = log4cxx::LogManager::getLoggerRepository();
        repository->addHierarchyEventListener(std::make_shared<AppenderWatch>());
        if (repository->isConfigured()) {
            anyAppender.store(true, std::memory_order_relaxed);
        }
        return true;
    }();
    static const ProcessEndWatch watch;
    return isWatching && anyAppender.load(std::memory_order_relaxed) &&
           !processEnds.load(std::memory_order_relaxed);
}

/// Asks the repository directly: LogManager::getLogger would look for configuration files in the
/// current directory and configure log4cxx instead of the client.
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

/// log4cxx complains on stderr about a line that no appender takes.
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
    static const ProcessEndWatch watch;
}

}  // namespace

const log4cxx::LoggerPtr* LogChannel::Find() const noexcept
try {
    if (!IsAnyoneListening()) {
        return nullptr;
    }
    const log4cxx::LoggerPtr* known = logger_.load(std::memory_order_acquire);
    if (known == nullptr) {
        auto found = std::make_unique<const log4cxx::LoggerPtr>(FindLogger(name_));
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
    const log4cxx::LoggerPtr* logger = Find();
    return logger != nullptr && IsWanted(*logger, level);
} catch (...) {
    return false;
}

void LogChannel::Write(LogLevel level, const std::string& message,
                       const log4cxx::spi::LocationInfo& location) const noexcept
try {
    if (const log4cxx::LoggerPtr* logger = Find()) {
        WriteTo(*logger, level, message, location);
    }
} catch (...) {
    // A line that cannot be written is lost. Logging never fails its caller.
}

bool LogChannel::IsEnabled(LogLevel level, const std::string& name) noexcept
try {
    return IsAnyoneListening() && IsWanted(FindLogger(name), level);
} catch (...) {
    return false;
}

void LogChannel::Write(LogLevel level, const std::string& name, const std::string& message,
                       const log4cxx::spi::LocationInfo& location) noexcept
try {
    if (IsAnyoneListening()) {
        WriteTo(FindLogger(name), level, message, location);
    }
} catch (...) {
    // As above.
}

}  // namespace Keel::details
