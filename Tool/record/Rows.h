// Nested records as rows of a table.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/RecordTree.h"

namespace Tool
{

/// The record with the members of nested records moved up, so that they fit in one row.
CapabilitySet::RecordNode Flattened(const CapabilitySet::RecordNode& item);

}  // namespace Tool
