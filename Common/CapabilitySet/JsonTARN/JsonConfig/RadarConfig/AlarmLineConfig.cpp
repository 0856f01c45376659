// The alarm lines of a radar.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/RadarConfig/AlarmLineConfig.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<AllAlarmLineCfg>;

}  // namespace CapabilitySet
