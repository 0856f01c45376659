// What an alarm host has, which commands it accepts, and which states it reports.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/AlarmHostCap.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<SubSysOperateCapability>;
template struct JsonPart<ZoneOperateCapability>;

template struct JsonRecord<AlarmHostTARNCapability>;
template struct JsonRecord<AlarmHostOperateTARNCapability>;
template struct JsonRecord<AlarmHostStatusTARNCapability>;

void SubSysOperateCapability::Parse(const Json::Value& value)
{
    if (value.isNull()) {
        return;
    }
    root = value;
    present = true;
}

}  // namespace CapabilitySet
