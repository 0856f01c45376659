// The entries of JsonRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/JsonRows.h"

#include "Catalog/Entries.h"
#include "Catalog/Sections.h"

namespace CapabilitySet::catalog
{

void AddJsonRecords(std::vector<RecordEntry>& entries)
{
    JsonRows(EntryMaker(entries));
}

}  // namespace CapabilitySet::catalog
