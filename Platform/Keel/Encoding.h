// Between UTF-8 and the client's local code page.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "Keel/Export.h"

namespace Keel
{

/// UTF-8 text in the local (ANSI) code page; what the code page cannot hold becomes '?'.
KEEL_API std::string UTF8ToLocal(std::string_view utf8);

}  // namespace Keel
