// Fire detectors: their states, and how their alarms are silenced.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"

namespace CapabilitySet
{

/// State of one sensor of a detector, sent as an object with "status" or as the bare word.
/// Parse throws what JsonCpp throws for a value of the wrong kind.
struct CAPABILITYSET_API DetectorSensor
{
    bool present = false;
    std::string status;

    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("status", r.status);
    }
};

/// State of a gas sensor, which warms up before it measures and wears out: in its status, or told
/// by flags beside it.
struct CAPABILITYSET_API GasSensor : DetectorSensor
{
    bool preheating = false;
    bool preheated = false;
    bool expired = false;

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
    std::string status;  ///< "normal" or "abnormal"
    GasSensor Gas;       ///< also "preheating", "preheated" or "expired"
    DetectorSensor Temperature;
    DetectorSensor Smoke;
    DetectorSensor Shelter;  ///< the detector is covered
    DetectorSensor Motion;
    DetectorSensor Tamper;  ///< the housing was opened

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

    std::vector<DetectorStatus> detectors;

    DetectorStates() = default;
    explicit DetectorStates(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.detectors, as::Wrapped{"DetectorStatus"});
    }
};

/// Commands that one channel's detectors take.
struct CAPABILITYSET_API ChannelDetectorCap : JsonPart<ChannelDetectorCap>
{
    JsonLimits id;
    JsonTextLimits cmd;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("cmd", r.cmd);
    }
};

/// Commands that detectors take.
struct CAPABILITYSET_API DetectorSilenceCap : JsonRecord<DetectorSilenceCap>
{
    static constexpr const char* kKey = "DetectorAlarmCap";

    JsonLimits id;
    JsonTextLimits cmd;
    std::vector<ChannelDetectorCap> channels;

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
