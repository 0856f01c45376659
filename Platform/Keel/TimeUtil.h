// Times as the protocol writes them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <ctime>
#include <string_view>

#include "Keel/Export.h"

namespace Keel::TimeUtil
{

/// "2020-01-01T00:00:00", optionally with fractions and "Z" or "+08:00", as UTC seconds; a text
/// without a zone is local time. -1 when the text is no such time.
KEEL_API std::time_t ISODatetime2TimeT(std::string_view text);

/// "2020-01-01 00:00:00", local time, as UTC seconds; -1 when the text is no such time.
KEEL_API std::time_t StrDatetime2TimeT(std::string_view text);

}  // namespace Keel::TimeUtil
