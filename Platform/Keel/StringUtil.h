// Text helpers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdarg>
#include <string>
#include <string_view>
#include <vector>

#include "Keel/Export.h"

namespace Keel::StringUtil
{

/// printf into a string, whatever its length. An empty string when the format cannot be carried
/// out.
KEEL_API std::string FormatString(const char* format, ...) KEEL_PRINTF(1, 2);
KEEL_API std::string FormatStringV(const char* format, va_list arguments) KEEL_PRINTF(1, 0);

/// The pieces of `text` between separators, empty ones included; one empty piece for empty text.
KEEL_API std::vector<std::string> SplitString(std::string_view text, std::string_view separator);

/// `text` with every `from` replaced by `to`, left to right; unchanged when `from` is empty.
KEEL_API std::string StringReplace(std::string_view text, std::string_view from,
                                   std::string_view to);

/// `text` without the characters of `blanks` at its two ends.
KEEL_API std::string StringTrim(std::string_view text, std::string_view blanks = " \t\r\n");

}  // namespace Keel::StringUtil
