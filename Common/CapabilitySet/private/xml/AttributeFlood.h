// Finds elements of more attributes than any device sends, before the parser meets them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace CapabilitySet::xml
{

/// No device puts more on one element.
inline constexpr int kMostAttributes = 1000;

/// Whether a document in UTF-8 holds a start tag of more than kMostAttributes attributes,
/// namespaces counted. The parser compares each attribute of an element with every other, before
/// any hook runs: 200,000 of them take a minute. Documents under 64 KiB have no room for enough to
/// matter and are not looked at.
bool HoldsAttributeFlood(std::string_view text);

}  // namespace CapabilitySet::xml
