// The record types of Catalog/EventRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/EventRows.h"

#include "support/RecordTypeMaker.h"

namespace TestSupport
{

void AddEventTypes(std::vector<RecordClass>& types)
{
    CapabilitySet::catalog::EventRows(TypeMaker(types));
}

}  // namespace TestSupport
