// Base of records that are read from one element inside a document.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"

struct _xmlNode;

namespace CapabilitySet
{

/// A record read from one element by its field list, never from a whole document.
template <class Record>
struct CAPABILITYSET_API ElementRecord : CBaseCapability
{
    /// Reads the record's element, or its children from the first child on if the record says so;
    /// null reads nothing. Never throws.
    void Parse(_xmlNode* node);
};

}  // namespace CapabilitySet
