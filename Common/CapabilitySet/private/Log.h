// Log lines with their place in the source, formatted only if their level is enabled.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Keel/CLog.h"

namespace CapabilitySet::log
{

/// Where a log line comes from. All strings must be literals: log4cxx keeps the pointers.
struct Place
{
    const char* file;
    const char* function;  ///< the full signature
    int line;
    const char* name = "";  ///< the function's name alone
};

/// The place of `Record::Parse(const std::string&)`, for records that inherit it from a template.
template <class Record>
inline constexpr Place kParsePlace{};

/// Logs a printf-style line to the client's log. Characters of devices that could control a
/// terminal are written as escapes, and lines longer than limits::kLogLineBytes are cut.
void Error(const Place& place, const char* format, ...) KEEL_PRINTF(2, 3);
void Info(const Place& place, const char* format, ...) KEEL_PRINTF(2, 3);

/// Logs that a list was cut at limits::kListEntries. True, for use in conditions.
bool ListIsCut();

}  // namespace CapabilitySet::log

/// Sets kParsePlace of a record to the file this stands in.
#define CAPABILITYSET_PARSE_PLACE(Record)                                                \
    template <>                                                                          \
    inline constexpr log::Place log::kParsePlace<Record>                                 \
    {                                                                                    \
        __FILE__, "void CapabilitySet::" #Record "::Parse(const std::string&)", __LINE__ \
    }

/// The place of the exported operation this stands in.
#define CAPABILITYSET_HERE \
    (::CapabilitySet::log::Place{__FILE__, __PRETTY_FUNCTION__, __LINE__, __func__})
