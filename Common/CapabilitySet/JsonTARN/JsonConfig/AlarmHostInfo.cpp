// What an alarm host tells beyond the library's own queries: the client fetches these itself.
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
