// The catalogue's sections: each adds the entries of one file of rows.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

#include "Catalog/Catalog.h"

namespace CapabilitySet::catalog
{

void AddAbilities(std::vector<RecordEntry>& entries);
void AddEvents(std::vector<RecordEntry>& entries);
void AddSettings(std::vector<RecordEntry>& entries);
void AddJsonRecords(std::vector<RecordEntry>& entries);
void AddJsonBodies(std::vector<RecordEntry>& entries);

}  // namespace CapabilitySet::catalog
