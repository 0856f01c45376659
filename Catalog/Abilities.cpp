// The entries of AbilityRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/AbilityRows.h"

#include "Catalog/Entries.h"
#include "Catalog/Sections.h"

namespace CapabilitySet::catalog
{

void AddAbilities(std::vector<RecordEntry>& entries)
{
    AbilityRows(EntryMaker(entries));
}

}  // namespace CapabilitySet::catalog
