// Fire detectors: their states and the commands to silence them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"

namespace CapabilitySet
{

/// State of one sensor of a detector, sent as an object with "status" or as a bare word.
struct CAPABILITYSET_API DetectorSensor
{
    bool present = false;  ///< the device sent the sensor
    std::string status;    ///< "normal" or "abnormal"

    /// Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("status", r.status);
    }
};

/// State of a gas sensor, which warms up before it measures and wears out. Devices send that in
/// "status" or in flags beside it.
struct CAPABILITYSET_API GasSensor : DetectorSensor
{
    bool preheating = false;  ///< the sensor is warming up
    bool preheated = false;   ///< the sensor has warmed up
    bool expired = false;     ///< the sensor is worn out

    /// Throws what JsonCpp throws for a value of the wrong kind.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        DetectorSensor::Fields(r, field);
        field("preheating", r.preheating);
        field("preheated", r.preheated);
        field("expired", r.expired);
    }
};

/// State of one detector.
struct CAPABILITYSET_API DetectorStatus : JsonPart<DetectorStatus>
{
    std::string status;          ///< "normal" or "abnormal"
    GasSensor Gas;               ///< gas; also "preheating", "preheated" or "expired"
    DetectorSensor Temperature;  ///< temperature
    DetectorSensor Smoke;        ///< smoke
    DetectorSensor Shelter;      ///< whether the detector is covered
    DetectorSensor Motion;       ///< motion
    DetectorSensor Tamper;       ///< whether the housing was opened

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("status", r.status);
        field("Gas", r.Gas);
        field("Temperature", r.Temperature);
        field("Smoke", r.Smoke);
        field("Shelter", r.Shelter);
        field("Motion", r.Motion);
        field("Tamper", r.Tamper);
    }
};

/// The detectors of a host.
struct CAPABILITYSET_API DetectorStates : JsonRecord<DetectorStates>
{
    static constexpr const char* kKey = "";

    std::vector<DetectorStatus> detectors;  ///< "List" of "DetectorStatus"

    DetectorStates() = default;
    explicit DetectorStates(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.detectors, as::Wrapped{"DetectorStatus"});
    }
};

/// Commands to the detectors of one channel.
struct CAPABILITYSET_API ChannelDetectorCap : JsonPart<ChannelDetectorCap>
{
    JsonLimits id;       ///< limits of `second` in SetDetectorSilence
    JsonTextLimits cmd;  ///< commands

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("cmd", r.cmd);
    }
};

/// Commands to detectors.
struct CAPABILITYSET_API DetectorSilenceCap : JsonRecord<DetectorSilenceCap>
{
    static constexpr const char* kKey = "DetectorAlarmCap";

    JsonLimits id;                             ///< limits of `first` in SetDetectorSilence
    JsonTextLimits cmd;                        ///< commands, such as "silence"
    std::vector<ChannelDetectorCap> channels;  ///< "ChannelDetectorCapList" of "ChannelID"

    DetectorSilenceCap() = default;
    explicit DetectorSilenceCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("cmd", r.cmd);
        field("ChannelDetectorCapList", r.channels, as::Wrapped{"ChannelID"});
    }
};

}  // namespace CapabilitySet
