// Fire detectors: their states, and silencing their alarms.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/FireControl.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<DetectorStatus>;
template struct JsonPart<ChannelDetectorCap>;

template struct JsonRecord<DetectorStates>;
template struct JsonRecord<DetectorSilenceCap>;

namespace
{

template <class Sensor>
void ParseSensor(const Json::Value& value, Sensor& sensor)
{
    if (value.isNull()) {
        return;
    }
    if (value.isObject()) {
        json::ReadFields(sensor, value);
    } else {
        sensor.status = value.asString();
    }
    sensor.present = true;
}

}  // namespace

void DetectorSensor::Parse(const Json::Value& value)
{
    ParseSensor(value, *this);
}

void GasSensor::Parse(const Json::Value& value)
{
    ParseSensor(value, *this);
}

}  // namespace CapabilitySet
