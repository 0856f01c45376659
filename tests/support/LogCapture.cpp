// Collects log lines during its lifetime.
// SPDX-License-Identifier: Apache-2.0
#include "support/LogCapture.h"

#include <mutex>

#include <log4cxx/appenderskeleton.h>
#include <log4cxx/helpers/transcoder.h>
#include <log4cxx/level.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>
#include <log4cxx/spi/loggerrepository.h>
#include <log4cxx/spi/loggingevent.h>

#include "support/AllocationFaults.h"

namespace TestSupport
{

class LogCapture::Appender : public log4cxx::AppenderSkeleton
{
public:
    std::vector<LogLine> Lines()
    {
        const std::lock_guard lock(guard_);
        return lines_;
    }

    void Clear()
    {
        const std::lock_guard lock(guard_);
        lines_.clear();
    }

    void close() override {}
    [[nodiscard]] bool requiresLayout() const override { return false; }

protected:
    void append(const log4cxx::spi::LoggingEventPtr& event, log4cxx::helpers::Pool&) override
    {
        const NoAllocationFaults pause;
        LogLine line;
        line.level = Utf8(event->getLevel()->toString());
        line.logger = Utf8(event->getLoggerName());
        line.message = Utf8(event->getMessage());
        const auto& place = event->getLocationInformation();
        line.file = place.getFileName();
        if (place.getLineNumber() > 0) {
            line.function = place.getClassName() + "::" + place.getMethodName();
        }
        line.line = place.getLineNumber();
        const std::lock_guard lock(guard_);
        lines_.push_back(std::move(line));
    }

private:
    static std::string Utf8(const log4cxx::LogString& text)
    {
        std::string utf8;
        log4cxx::helpers::Transcoder::encodeUTF8(text, utf8);
        return utf8;
    }

    std::mutex guard_;
    std::vector<LogLine> lines_;
};

LogCapture::LogCapture() : appender_(std::make_shared<Appender>())
{
    const auto root = log4cxx::LogManager::getLoggerRepository()->getRootLogger();
    root->setLevel(log4cxx::Level::getAll());
    root->addAppender(appender_);
}

LogCapture::~LogCapture()
{
    log4cxx::LogManager::getLoggerRepository()->getRootLogger()->removeAppender(appender_);
}

std::vector<LogLine> LogCapture::Lines(const std::string& logger) const
{
    std::vector<LogLine> found;
    for (LogLine& line : appender_->Lines()) {
        if (line.logger == logger) {
            found.push_back(std::move(line));
        }
    }
    return found;
}

std::vector<std::string> LogCapture::Messages(const std::string& logger) const
{
    std::vector<std::string> messages;
    for (LogLine& line : Lines(logger)) {
        messages.push_back(std::move(line.message));
    }
    return messages;
}

void LogCapture::Clear()
{
    appender_->Clear();
}

}  // namespace TestSupport
