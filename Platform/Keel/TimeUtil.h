// Conversion of the protocol's time formats.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ctime>
#include <string_view>

#include "Keel/Export.h"

namespace Keel::TimeUtil
{

/// Converts "2020-01-01T00:00:00", optionally with fractions (ignored) and "Z" or "+08:00", to
/// seconds since 1970 UTC. Without a zone the time is local: one that occurs twice at a clock
/// change means its first occurrence, one that is skipped is counted from before the change.
/// "24:00:00" is midnight of the next day. Returns -1 for any other text; nothing may precede or
/// follow the time.
KEEL_API std::time_t ISODatetime2TimeT(std::string_view text);

/// Converts "2020-01-01 00:00:00", local time as above, to seconds since 1970 UTC; -1 for any other
/// text.
KEEL_API std::time_t StrDatetime2TimeT(std::string_view text);

}  // namespace Keel::TimeUtil
