// Passwords and keys in records.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/RecordTree.h"

namespace Tool
{

/// Replaces each password and key with "(hidden)".
void HideSecrets(CapabilitySet::RecordNode& record);

}  // namespace Tool
