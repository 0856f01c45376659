// What an alarm host has, takes as commands, and tells of its state.
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
    json::RequireObject(value);
    root = value;
    present = true;
}

}  // namespace CapabilitySet
