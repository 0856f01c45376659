// Finds elements with more attributes than any device sends, before the parser does.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "CapabilitySet/Limits.h"

namespace CapabilitySet::xml
{

/// Whether a UTF-8 document holds a start tag with more than limits::kAttributes attributes and
/// namespace declarations. The parser compares each attribute of an element with all others before
/// it calls any hook: 200,000 take a minute. Documents under 64 KiB cannot hold enough to matter
/// and are not checked.
bool HoldsAttributeFlood(std::string_view text);

}  // namespace CapabilitySet::xml
