// The record types of Catalog/AbilityRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/AbilityRows.h"

#include "support/RecordTypeMaker.h"

namespace TestSupport
{

void AddAbilityTypes(std::vector<RecordClass>& types)
{
    CapabilitySet::catalog::AbilityRows(TypeMaker(types));
}

}  // namespace TestSupport
