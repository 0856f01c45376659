// Finds elements with more attributes than any device sends.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/AttributeFlood.h"

#include <cstddef>

#include "XmlGuard/TagScan.h"

namespace CapabilitySet::xml
{

bool HoldsAttributeFlood(std::string_view text)
{
    constexpr std::size_t kSmallestFlood = 64 * 1024;
    return text.size() >= kSmallestFlood && XmlGuard::HasAttributeFlood(text, limits::kAttributes);
}

}  // namespace CapabilitySet::xml
