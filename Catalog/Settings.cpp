// The entries of SettingRows.h.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/SettingRows.h"

#include "Catalog/Entries.h"
#include "Catalog/Sections.h"

namespace CapabilitySet::catalog
{

void AddSettings(std::vector<RecordEntry>& entries)
{
    SettingRows(EntryMaker(entries));
}

}  // namespace CapabilitySet::catalog
