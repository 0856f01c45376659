// Searching analysed behaviour, and marking false alarms.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/BehaviorSearch.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<DeeplyThinkBehaviorDescription>;
template struct JsonRecord<DeeplyThinkBehaviorSearch>;
template struct JsonRecord<MisinfoConfirm>;

}  // namespace CapabilitySet
