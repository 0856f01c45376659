// Records by the names that people type.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "Catalog/Catalog.h"

namespace Tool
{

using CapabilitySet::Reading;
using CapabilitySet::RecordNode;
using CapabilitySet::Untaken;
using CapabilitySet::catalog::AllRecords;
using CapabilitySet::catalog::Answer;
using CapabilitySet::catalog::FindRecord;
using CapabilitySet::catalog::RecordEntry;
using CapabilitySet::catalog::Selectors;

/// The record of that name; throws a usage failure that suggests the nearest name.
const RecordEntry& RecordNamed(const std::string& name);

/// The options that give a record's selectors: "--channel".
std::vector<std::string> OptionsOf(const RecordEntry& record);

/// The named records, or all that a device can be asked for when no name is given. Throws a usage
/// failure for one that no query gets.
std::vector<const RecordEntry*> RecordsNamed(const std::vector<std::string>& names);

/// Throws a usage failure when none of the records is asked with one of those options.
void CheckOptions(const std::vector<const RecordEntry*>& records,
                  const std::vector<std::string>& options);

}  // namespace Tool
