// What a device can analyse and search: crossings, city management, behaviour, false alarms.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/AnalysisCap.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<IntersectionTagCap>;

template struct JsonRecord<IntersectionAnalysisCap>;
template struct JsonRecord<CityManagementCapability>;
template struct JsonRecord<DeeplyThinkBehaviorCap>;
template struct JsonRecord<MisinfoConfirmCap>;

}  // namespace CapabilitySet
