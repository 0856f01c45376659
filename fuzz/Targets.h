// What the fuzzers run, and the tests too, over the kept finds.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Fuzz
{

// Each takes any bytes, and throws std::logic_error when a property does not hold for them.

/// Records read in one pass hold what a plain cursor finds field by field; a text that is no
/// document of a record leaves it at its defaults.
void Xml(const std::string& text);

/// A record reads alike each time, and reads back what it writes.
void Json(const std::string& text);

/// Numbers are those of a stream with the classic locale.
void Number(const std::string& text);

}  // namespace Fuzz
