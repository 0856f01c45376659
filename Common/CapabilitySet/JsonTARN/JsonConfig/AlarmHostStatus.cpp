// Communication state, zones, subsystems, outputs and log of an alarm host.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostStatus.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<AlarmHostZone>;
template struct JsonPart<AlarmHostSubSystem>;
template struct JsonPart<OutputLinkage>;
template struct JsonPart<TriggerConfig>;
template struct JsonPart<AlarmHostDeviceLogMatchItem>;

template struct JsonRecord<AlarmHostCommunicationStatus>;
template struct JsonRecord<AlarmHostZoneConfig>;
template struct JsonRecord<AlarmHostSubSystemConfig>;
template struct JsonRecord<TriggerListConfig>;
template struct JsonRecord<AlarmHostDeviceLogResult>;

}  // namespace CapabilitySet
