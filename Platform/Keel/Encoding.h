// Conversion from UTF-8 to the client's local code page.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Keel/Export.h"

namespace Keel
{

/// Converts UTF-8 to the local (ANSI) code page. Characters that it lacks become '?'.
KEEL_API std::string UTF8ToLocal(std::string_view utf8);

}  // namespace Keel
