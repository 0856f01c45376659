// Any XML document a device sends, whatever record it may be: as elements, or indented for people.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// The root element of a document with everything below it; one without a name when the text is no
/// document. Silent. Throws std::bad_alloc.
CAPABILITYSET_API AbilityElement ElementsOf(const std::string& text);

/// A document with its elements indented, in UTF-8; empty when the text is no document. Text that
/// stands beside elements stays as it is. Silent. Throws std::bad_alloc.
CAPABILITYSET_API std::string IndentedXml(const std::string& text);

}  // namespace CapabilitySet
