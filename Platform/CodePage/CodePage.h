// From the system's ANSI code page to UTF-8: the system call on Windows, iconv elsewhere.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Keel/Export.h"

namespace CodePage
{

/// `text`, taken as text in the ANSI code page, as UTF-8. Elsewhere than on Windows that is the
/// code set of the calling thread's locale; a client that never called setlocale has the plain "C"
/// locale and works in UTF-8: its UTF-8 text passes unchanged. Each byte that is no text there
/// becomes U+FFFD, the rest is kept. Throws nothing but std::bad_alloc.
KEEL_API std::string AnsiToUtf8(std::string_view text);

/// UTF-8 into the ANSI code page; what that cannot hold, and what is not UTF-8, becomes '?' (or
/// U+FFFD where the code page is UTF-8).
KEEL_API std::string Utf8ToAnsi(std::string_view utf8);

/// The same two from and into a code set named as for iconv ("GBK"); empty when there is none of
/// that name.
KEEL_API std::string ToUtf8(std::string_view text, const char* codeSet);
KEEL_API std::string FromUtf8(std::string_view utf8, const char* codeSet);

}  // namespace CodePage
