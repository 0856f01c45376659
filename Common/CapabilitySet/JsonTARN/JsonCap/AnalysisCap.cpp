// What a device can analyse and search: crossings, city management, behaviour, false alarms.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/AnalysisCap.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

/// The JSON writer finds this by argument-dependent lookup.
static void WriteValue(Json::Value& target, const OptJsonElement& element)
{
    if (element.capable) {
        json::WriteValue(json::ObjectOf(target)["@opt"], element.opt);
    }
}

template struct JsonPart<IntersectionTagCap>;

template struct JsonRecord<IntersectionAnalysisCap>;
template struct JsonRecord<CityManagementCapability>;
template struct JsonRecord<DeeplyThinkBehaviorCap>;
template struct JsonRecord<MisinfoConfirmCap>;

}  // namespace CapabilitySet
