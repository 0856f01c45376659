// The entries of EventRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/EventRows.h"

#include "Catalog/Entries.h"
#include "Catalog/Sections.h"

namespace CapabilitySet::catalog
{

void AddEvents(std::vector<RecordEntry>& entries)
{
    EventRows(EntryMaker(entries));
}

}  // namespace CapabilitySet::catalog
