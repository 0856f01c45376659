// String helpers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdarg>
#include <string>
#include <string_view>
#include <vector>

#include "Keel/Export.h"

namespace Keel::StringUtil
{

/// printf into a string of any length. Empty if the format is invalid.
KEEL_API std::string FormatString(const char* format, ...) KEEL_PRINTF(1, 2);
/// The same with the arguments in a list.
KEEL_API std::string FormatStringV(const char* format, va_list arguments) KEEL_PRINTF(1, 0);

/// The pieces of `text` between separators, including empty ones. Empty text gives one empty piece.
KEEL_API std::vector<std::string> SplitString(std::string_view text, std::string_view separator);

/// `text` with every `from` replaced by `to`, left to right; unchanged if `from` is empty.
KEEL_API std::string StringReplace(std::string_view text, std::string_view from,
                                   std::string_view to);

/// `text` without leading and trailing characters of `blanks`.
KEEL_API std::string StringTrim(std::string_view text, std::string_view blanks = " \t\r\n");

}  // namespace Keel::StringUtil
