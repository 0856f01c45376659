// Records of alarm hosts that have no query here: clients fetch these documents themselves.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostInfo.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<AlarmSirenCfg>;
template struct JsonRecord<AlarmHostCIDAlarmCfg>;
template struct JsonRecord<AlarmSirenStatus>;
template struct JsonRecord<AlarmHostSubSystemsInfo>;
template struct JsonRecord<AlarmHostOutputsModulesInfo>;
template struct JsonRecord<AlarmHostZonesInfo>;
template struct JsonRecord<AlarmHostSirensInfo>;

}  // namespace CapabilitySet
