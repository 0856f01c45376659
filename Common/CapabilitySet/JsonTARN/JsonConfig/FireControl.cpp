// Fire detectors: their states, and how their alarms are silenced.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/FireControl.h"

#include "CapabilitySet/private/JsonRecord.h"

namespace CapabilitySet
{

template struct JsonPart<DetectorStatus>;
template struct JsonPart<ChannelDetectorCap>;

template struct JsonRecord<DetectorStates>;
template struct JsonRecord<DetectorSilenceCap>;

void DetectorSensor::Parse(const Json::Value& value)
{
    if (value.isNull())
        return;
    status = (value.isString() ? value : json::MemberOf(value, "status")).asString();
    present = true;
}

}  // namespace CapabilitySet
