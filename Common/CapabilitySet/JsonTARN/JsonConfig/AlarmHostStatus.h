// What an alarm host tells of its communication, zones, subsystems, outputs and log.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// How the host reaches its centre.
struct CAPABILITYSET_API AlarmHostCommunicationStatus : JsonRecord<AlarmHostCommunicationStatus>
{
    static constexpr const char* kKey = "CommuniStatus";

    std::string wired;        ///< state of the wired network
    std::string wifi;         ///< state of the wireless network
    int wifiSignal = 0;       ///< strength, percent
    std::string mobile;       ///< state of the mobile network
    int mobileSignal = 0;     ///< strength, percent
    double flow = 0;          ///< mobile data used this month, MB
    double monFlowLimit = 0;  ///< mobile data a month may use, MB
    std::string cloud;        ///< state of the cloud connection
    std::string wired2;       ///< state of the second wired network

    AlarmHostCommunicationStatus() = default;
    explicit AlarmHostCommunicationStatus(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("wired", r.wired);
        field("wifi", r.wifi);
        field("wifiSignal", r.wifiSignal);
        field("mobile", r.mobile);
        field("mobileSignal", r.mobileSignal);
        field("flow", r.flow);
        field("monFlowLimit", r.monFlowLimit);
        field("cloud", r.cloud);
        field("wired2", r.wired2);
    }
};

/// One zone.
struct CAPABILITYSET_API AlarmHostZone : JsonPart<AlarmHostZone>
{
    int id = 0;
    bool enable = false;
    std::string zoneName;
    int subSystemNo = 0;  ///< the subsystem it belongs to
    std::string detectorType;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("enable", r.enable);
        field("zoneName", r.zoneName);
        field("subSystemNo", r.subSystemNo);
        field("detectorType", r.detectorType);
    }
};

/// The zones of a host.
struct CAPABILITYSET_API AlarmHostZoneConfig : JsonRecord<AlarmHostZoneConfig>
{
    static constexpr const char* kKey = "";

    std::vector<AlarmHostZone> zones;

    AlarmHostZoneConfig() = default;
    explicit AlarmHostZoneConfig(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.zones, as::Wrapped{"Zone"});
    }
};

/// One subsystem.
struct CAPABILITYSET_API AlarmHostSubSystem : JsonPart<AlarmHostSubSystem>
{
    int id = 0;
    bool enabled = false;
    std::vector<int> linkageZones;  ///< numbers of its zones
    bool oneKeyArmEnabled = false;
    std::string name;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("enabled", r.enabled);
        field("linkageZones", r.linkageZones);
        field("oneKeyArmEnabled", r.oneKeyArmEnabled);
        field("name", r.name);
    }
};

/// The subsystems of a host.
struct CAPABILITYSET_API AlarmHostSubSystemConfig : JsonRecord<AlarmHostSubSystemConfig>
{
    static constexpr const char* kKey = "";

    std::vector<AlarmHostSubSystem> subSystems;

    AlarmHostSubSystemConfig() = default;
    explicit AlarmHostSubSystemConfig(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.subSystems, as::Wrapped{"SubSys"});
    }
};

/// One cause that switches an output.
struct CAPABILITYSET_API OutputLinkage : JsonPart<OutputLinkage>
{
    std::string linkage;
    std::string scenarioType;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("linkage", r.linkage);
        field("scenarioType", r.scenarioType);
    }
};

/// One output.
struct CAPABILITYSET_API TriggerConfig : JsonPart<TriggerConfig>
{
    int id = 0;
    std::string name;
    bool related = false;  ///< it is linked to a module
    int outputModuleNo = 0;
    int channelNo = 0;  ///< its place on the module
    std::string linkage;
    std::string alarmEvent;
    std::vector<OutputLinkage> linkageList;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("name", r.name);
        field("related", r.related);
        field("outputModuleNo", r.outputModuleNo);
        field("channelNo", r.channelNo);
        field("linkage", r.linkage);
        field("alarmEvent", r.alarmEvent);
        field("LinkageList", r.linkageList);
    }
};

/// The outputs of a host.
struct CAPABILITYSET_API TriggerListConfig : JsonRecord<TriggerListConfig>
{
    static constexpr const char* kKey = "";

    std::vector<TriggerConfig> outputs;

    TriggerListConfig() = default;
    explicit TriggerListConfig(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.outputs, as::Wrapped{"Output"});
    }
};

/// One entry of the log, as the device tells it.
struct CAPABILITYSET_API AlarmHostDeviceLogMatchItem : JsonPart<AlarmHostDeviceLogMatchItem>
{
    Json::Value logDescriptor;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("logDescriptor", r.logDescriptor);
    }
};

/// One page of a log search.
struct CAPABILITYSET_API AlarmHostDeviceLogResult : JsonRecord<AlarmHostDeviceLogResult>
{
    static constexpr const char* kKey = "SearchResult";

    std::string searchID;
    bool responseStatus = false;
    std::string responseStatusStrg;  ///< "OK", "MORE" when further pages follow, "NO MATCH"
    int numOfMatches = 0;            ///< entries in this page
    std::vector<AlarmHostDeviceLogMatchItem> matchList;

    AlarmHostDeviceLogResult() = default;
    explicit AlarmHostDeviceLogResult(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("searchID", r.searchID);
        field("responseStatus", r.responseStatus);
        field("responseStatusStrg", r.responseStatusStrg);
        field("numOfMatches", r.numOfMatches);
        field("matchList", r.matchList, as::Wrapped{"searchMatchItem"});
    }
};

}  // namespace CapabilitySet
