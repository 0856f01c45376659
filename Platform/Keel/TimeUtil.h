// Times as the protocol writes them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ctime>
#include <string_view>

#include "Keel/Export.h"

namespace Keel::TimeUtil
{

/// "2020-01-01T00:00:00", optionally with fractions (dropped) and "Z" or "+08:00", as UTC seconds.
/// A text without a zone is local time; of a time that local clocks show twice the first is meant,
/// one that they skip is counted on from before the change. "24:00:00" is the next day's midnight.
/// -1 when the text is no such time; nothing may stand before or after it.
KEEL_API std::time_t ISODatetime2TimeT(std::string_view text);

/// "2020-01-01 00:00:00", local time in the same sense, as UTC seconds; -1 when the text is no such
/// time.
KEEL_API std::time_t StrDatetime2TimeT(std::string_view text);

}  // namespace Keel::TimeUtil
