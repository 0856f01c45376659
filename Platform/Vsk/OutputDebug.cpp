// Short debug traces.
// SPDX-License-Identifier: Apache-2.0
#include "Vsk/OutputDebug.h"

#include <cstdarg>

#include "Keel/LogChannel.h"
#include "Keel/StringUtil.h"

void VSK_OutputDebug(const char* format, ...)
{
    using Keel::details::LogChannel;
    using Keel::details::LogLevel;
    static constinit LogChannel channel{"Vsk"};
    if (!channel.IsEnabled(LogLevel::Debug)) {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    try {
        channel.Write(LogLevel::Debug, Keel::StringUtil::FormatStringV(format, arguments),
                      log4cxx::spi::LocationInfo::getLocationUnavailable());
    } catch (...) {
        // A trace that cannot be formatted is lost.
    }
    va_end(arguments);
}
