// The entries of JsonBodyRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/JsonBodyRows.h"

#include "Catalog/Entries.h"
#include "Catalog/Sections.h"

namespace CapabilitySet::catalog
{

void AddJsonBodies(std::vector<RecordEntry>& entries)
{
    JsonBodyRows(EntryMaker(entries));
}

}  // namespace CapabilitySet::catalog
