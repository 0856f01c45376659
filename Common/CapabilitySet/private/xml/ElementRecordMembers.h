// Defines the member of ElementRecord; a source file instantiates it for its own records.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/ElementRecord.h"
#include "CapabilitySet/private/xml/XmlFields.h"

namespace CapabilitySet
{

template <class Record>
void ElementRecord<Record>::Parse(_xmlNode* node)
{
    xml::ParseNode(static_cast<Record&>(*this), node);
}

}  // namespace CapabilitySet
