// Writes log lines, formatting them only if their level is enabled.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/Log.h"

#include <cstdarg>

#include "Keel/StringUtil.h"

namespace CapabilitySet::log
{
namespace
{

using Keel::details::CLog;
using Keel::details::LogLevel;
using Write = void (CLog::*)(const std::string&, const std::string&,
                             const log4cxx::spi::LocationInfo&);

KEEL_PRINTF(3, 0)
void Line(Write write, const Place& place, const char* format, va_list arguments)
{
    (Keel::CSingleton<CLog>::Instance().*write)(
        {}, Keel::StringUtil::FormatStringV(format, arguments),
        {place.file, log4cxx::spi::LocationInfo::calcShortFileName(place.file), place.function,
         place.line});
}

bool Wanted(LogLevel level)
{
    return Keel::CSingleton<CLog>::Instance().IsEnabled(level);
}

}  // namespace

void Error(const Place& place, const char* format, ...)
{
    if (!Wanted(LogLevel::Error)) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    Line(&CLog::Error, place, format, arguments);
    va_end(arguments);
}

void Info(const Place& place, const char* format, ...)
{
    if (!Wanted(LogLevel::Info)) {
        return;
    }
    va_list arguments;
    va_start(arguments, format);
    Line(&CLog::Info, place, format, arguments);
    va_end(arguments);
}

}  // namespace CapabilitySet::log
