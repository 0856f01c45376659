// Records by the names that people type.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "Tool/record/Records.h"

namespace Tool
{

/// The record of that name; throws a usage failure that suggests the nearest name.
const RecordEntry& RecordNamed(const std::string& name);

/// The named records, or all of them when no name is given.
std::vector<const RecordEntry*> RecordsNamed(const std::vector<std::string>& names);

/// Throws a usage failure when none of the records is asked with one of those options.
void CheckOptions(const std::vector<const RecordEntry*>& records,
                  const std::vector<std::string>& options);

}  // namespace Tool
