// Formatting texts and log lines, compared with the plain way.
// SPDX-License-Identifier: Apache-2.0
#include <cstdarg>
#include <cstdio>
#include <string>

#include <log4cxx/basicconfigurator.h>
#include <log4cxx/logger.h>
#include <log4cxx/logmanager.h>

#include "CapabilitySet/private/Log.h"
#include "Comparison.h"
#include "Keel/CLog.h"
#include "Keel/StringUtil.h"

namespace
{

constexpr char kLine[] = "%s failed, [%d]-[%d].";

/// Measures, then prints: the baseline of FormatString.
std::string TwoPasses(const char* format, ...) KEEL_PRINTF(1, 2);

std::string TwoPasses(const char* format, ...)
{
    std::va_list arguments;
    std::va_list again;
    va_start(arguments, format);
    va_copy(again, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, arguments);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    va_end(arguments);
    return text;
}

/// Formats the line even if its level is off.
bool FormatFirst()
{
    const std::string line = TwoPasses(kLine, "NET_ORB_STDXMLConfig", 50, 7);
    Keel::CSingleton<Keel::details::CLog>::Instance().Error(
        {}, line, {__FILE__, __FILE__, __PRETTY_FUNCTION__, __LINE__});
    return true;
}

bool LevelFirst()
{
    CapabilitySet::log::Error(CAPABILITYSET_HERE, kLine, "NET_ORB_STDXMLConfig", 50, 7);
    return true;
}

}  // namespace

int main(int argc, char** argv)
{
    constexpr int kRounds = 2000;
    Bench::Compare(
        "FormatString", kRounds, [] { return TwoPasses(kLine, "NET_ORB_STDXMLConfig", 50, 7); },
        [] { return Keel::StringUtil::FormatString(kLine, "NET_ORB_STDXMLConfig", 50, 7); });

    // A client that logs, but not at this level.
    log4cxx::BasicConfigurator::configure();
    log4cxx::Logger::getRootLogger()->setLevel(log4cxx::Level::getFatal());
    Bench::Compare("a log line whose level is off", kRounds, FormatFirst, LevelFirst);
    return Bench::Run(argc, argv);
}
