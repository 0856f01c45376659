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
    const char* function;
    int line;
};

/// Logs a printf-style line to the client's log.
void Error(const Place& place, const char* format, ...) KEEL_PRINTF(2, 3);
void Info(const Place& place, const char* format, ...) KEEL_PRINTF(2, 3);

}  // namespace CapabilitySet::log

/// The exported operation this stands in, for its log lines.
#define CAPABILITYSET_HERE (::CapabilitySet::log::Place{__FILE__, __PRETTY_FUNCTION__, __LINE__})
