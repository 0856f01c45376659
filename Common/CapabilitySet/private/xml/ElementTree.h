// Copies an element and everything below it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <libxml/tree.h>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet::xml
{

/// Recursion is safe: the parser refuses documents deeper than 256 elements. Throws std::bad_alloc.
AbilityElement CopyElement(const xmlNode* node);

}  // namespace CapabilitySet::xml
