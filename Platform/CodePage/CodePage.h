// From the system's ANSI code page to UTF-8: the system call on Windows, iconv elsewhere.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Keel/Export.h"

namespace CodePage
{

/// `text`, taken as text in the ANSI code page (elsewhere: the code set of the client's locale),
/// as UTF-8. Bytes that are no text there become U+FFFD; the rest is kept. Never throws but
/// std::bad_alloc.
KEEL_API std::string AnsiToUtf8(std::string_view text);

/// The same from a code set named as for iconv ("GBK"); empty when there is none of that name.
KEEL_API std::string ToUtf8(std::string_view text, const char* codeSet);

/// UTF-8 into the ANSI code page; what it cannot hold becomes '?'.
KEEL_API std::string Utf8ToAnsi(std::string_view utf8);

}  // namespace CodePage
