// The client's logger.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/CLog.h"

#include "Keel/LogChannel.h"

namespace Keel::details
{

struct CLog::Loggers
{
    LogChannel untagged{"Keel"};

    void Write(LogLevel level, const std::string& tag, const std::string& message,
               const log4cxx::spi::LocationInfo& location) const noexcept
    {
        if (tag.empty()) {
            untagged.Write(level, message, location);
        } else {
            LogChannel::Write(level, tag, message, location);
        }
    }
};

CLog::CLog() : loggers_(std::make_unique<Loggers>()) {}
CLog::~CLog() = default;

void CLog::Error(const std::string& tag, const std::string& message,
                 const log4cxx::spi::LocationInfo& location)
{
    loggers_->Write(LogLevel::Error, tag, message, location);
}

void CLog::Info(const std::string& tag, const std::string& message,
                const log4cxx::spi::LocationInfo& location)
{
    loggers_->Write(LogLevel::Info, tag, message, location);
}

void CLog::Debug(const std::string& tag, const std::string& message,
                 const log4cxx::spi::LocationInfo& location)
{
    loggers_->Write(LogLevel::Debug, tag, message, location);
}

bool CLog::IsEnabled(LogLevel level, const std::string& tag) const
{
    return tag.empty() ? loggers_->untagged.IsEnabled(level) : LogChannel::IsEnabled(level, tag);
}

}  // namespace Keel::details
