// What records have that are the image of one element inside a document.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"

struct _xmlNode;

namespace CapabilitySet
{

/// A record that is read from one element by its field list, and never from a whole document.
template <class Record>
struct CAPABILITYSET_API ElementRecord : CBaseCapability
{
    /// Reads the record's element, or what begins with its first child where the record's comment
    /// says so; null reads nothing. Never throws.
    void Parse(_xmlNode* node);
};

}  // namespace CapabilitySet
