// Log lines: a place, a level, and text that is made only when it is wanted.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Keel/CLog.h"

namespace CapabilitySet::log
{

/// Where a log line comes from. All texts are literals: log4cxx keeps the pointers.
struct Place
{
    const char* file;
    const char* function;  ///< the full signature
    int line;
    const char* name = "";  ///< the function's name alone
};

/// Where `Record::Parse(const std::string&)` stands, for records that inherit it from a template.
template <class Record>
inline constexpr Place kParsePlace{};

/// Logs a printf-style line to the client's log.
void Error(const Place& place, const char* format, ...) KEEL_PRINTF(2, 3);
void Info(const Place& place, const char* format, ...) KEEL_PRINTF(2, 3);

}  // namespace CapabilitySet::log

/// Sets kParsePlace of a record to the file that names it.
#define CAPABILITYSET_PARSE_PLACE(Record)                                                \
    template <>                                                                          \
    inline constexpr log::Place log::kParsePlace<Record>                                 \
    {                                                                                    \
        __FILE__, "void CapabilitySet::" #Record "::Parse(const std::string&)", __LINE__ \
    }

/// The exported operation this stands in, for its log lines.
#define CAPABILITYSET_HERE \
    (::CapabilitySet::log::Place{__FILE__, __PRETTY_FUNCTION__, __LINE__, __func__})
