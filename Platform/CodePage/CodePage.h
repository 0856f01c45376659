// Conversion between the ANSI code page and UTF-8: system calls on Windows, iconv elsewhere.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Keel/Export.h"

namespace CodePage
{

/// Converts text in the ANSI code page to UTF-8. Outside Windows the code page is the code set of
/// the calling thread's locale; under the "C" locale, which a client has that never called
/// setlocale, it is UTF-8. Each invalid byte becomes U+FFFD. Throws only std::bad_alloc.
KEEL_API std::string AnsiToUtf8(std::string_view text);

/// Converts UTF-8 to the ANSI code page. Characters that it lacks and invalid bytes become '?', or
/// U+FFFD where the code page is UTF-8. Throws only std::bad_alloc.
KEEL_API std::string Utf8ToAnsi(std::string_view utf8);

/// Converts text in a code set named as for iconv, such as "GBK", to UTF-8. Empty if the code set
/// is unknown.
KEEL_API std::string ToUtf8(std::string_view text, const char* codeSet);
/// Converts UTF-8 to such a code set. Empty if the code set is unknown.
KEEL_API std::string FromUtf8(std::string_view utf8, const char* codeSet);

}  // namespace CodePage
