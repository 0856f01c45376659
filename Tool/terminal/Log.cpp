// The log on stderr.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Log.h"

#include <memory>

#include <log4cxx/consoleappender.h>
#include <log4cxx/level.h>
#include <log4cxx/logger.h>
#include <log4cxx/patternlayout.h>

#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

bool isLoggingInfo = false;

}  // namespace

void LogToStderr(const std::string& level)
{
    const auto layout =
        std::make_shared<log4cxx::PatternLayout>(LOG4CXX_STR("%d{HH:mm:ss.SSS} %-5p %c  %m%n"));
    const auto appender = std::make_shared<log4cxx::ConsoleAppender>(
        layout, log4cxx::ConsoleAppender::getSystemErr());
    const log4cxx::LoggerPtr root = log4cxx::Logger::getRootLogger();
    root->addAppender(appender);
    root->setLevel(log4cxx::Level::toLevel(level));
    isLoggingInfo = level != "error";
}

bool IsLoggingInfo()
{
    return isLoggingInfo;
}

void LogInfo(const std::string& line)
{
    static const log4cxx::LoggerPtr logger = log4cxx::Logger::getLogger("capset");
    if (isLoggingInfo) {
        logger->info(Harmless(line));
    }
}

}  // namespace Tool
