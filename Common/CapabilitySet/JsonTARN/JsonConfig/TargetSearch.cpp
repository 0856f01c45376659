// Searching files by the kind of target in them, and a data centre's video tasks.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/TargetSearch.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<TargetSearchDescription>;
template struct JsonRecord<TargetSearchResult>;
template struct JsonRecord<DataCenterTaskCond>;
template struct JsonRecord<DataCenterTaskResult>;

}  // namespace CapabilitySet
