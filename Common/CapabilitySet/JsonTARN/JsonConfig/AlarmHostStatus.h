// States and settings of an alarm host: communication, zones, subsystems, outputs, log.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The host's connections to its centre.
struct CAPABILITYSET_API AlarmHostCommunicationStatus : JsonRecord<AlarmHostCommunicationStatus>
{
    static constexpr const char* kKey = "CommuniStatus";

    std::string wired;        ///< state of the wired network
    std::string wifi;         ///< state of Wi-Fi
    int wifiSignal = 0;       ///< Wi-Fi signal, percent
    std::string mobile;       ///< state of the mobile network
    int mobileSignal = 0;     ///< mobile signal, percent
    double flow = 0;          ///< mobile data used this month, MB
    double monFlowLimit = 0;  ///< mobile data allowed per month, MB
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
    int id = 0;                ///< zone number
    bool enable = false;       ///< the zone is in use
    std::string zoneName;      ///< name shown to users
    int subSystemNo = 0;       ///< subsystem that the zone belongs to
    std::string detectorType;  ///< such as "magneticContact" or "PIR"

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

    std::vector<AlarmHostZone> zones;  ///< "List" of "Zone"

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
    int id = 0;                     ///< subsystem number
    bool enabled = false;           ///< the subsystem is in use
    std::vector<int> linkageZones;  ///< numbers of its zones
    bool oneKeyArmEnabled = false;  ///< it can be armed with one key
    std::string name;               ///< name shown to users

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

    std::vector<AlarmHostSubSystem> subSystems;  ///< "List" of "SubSys"

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
    std::string linkage;       ///< the cause, such as "alarm"
    std::string scenarioType;  ///< arming in which it counts, such as "away"

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
    int id = 0;              ///< output number
    std::string name;        ///< name shown to users
    bool related = false;    ///< the output is linked to a module
    int outputModuleNo = 0;  ///< module number
    int channelNo = 0;       ///< place on the module
    std::string linkage;     ///< what switches it, such as "zone" or "manual"
    std::string alarmEvent;  ///< event that switches it, such as "intrusion" or "none"
    std::vector<OutputLinkage> linkageList;  ///< causes that switch it

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

    std::vector<TriggerConfig> outputs;  ///< "List" of "Output"

    TriggerListConfig() = default;
    explicit TriggerListConfig(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("List", r.outputs, as::Wrapped{"Output"});
    }
};

/// One entry of the log.
struct CAPABILITYSET_API AlarmHostDeviceLogMatchItem : JsonPart<AlarmHostDeviceLogMatchItem>
{
    Json::Value logDescriptor;  ///< the entry, in the device's form

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

    std::string searchID;            ///< as in the condition
    bool responseStatus = false;     ///< the search succeeded
    std::string responseStatusStrg;  ///< "OK", "MORE" if pages follow, "NO MATCH"
    int numOfMatches = 0;            ///< entries in this page
    std::vector<AlarmHostDeviceLogMatchItem> matchList;  ///< "matchList" of "searchMatchItem"

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
