// Capabilities of an alarm host: its parts, its commands, the states it reports.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// Numbers of partitions, zones and relays.
struct CAPABILITYSET_API AlarmHostTARNCapability : JsonRecord<AlarmHostTARNCapability>
{
    static constexpr const char* kKey = "SecurityCPCap";

    int partitionNum = 0;      ///< partitions (subsystems)
    int localZoneNum = 0;      ///< zones wired to the host
    int extendZoneNum = 0;     ///< zones on extension modules
    int wirelessZoneNum = 0;   ///< wireless zones
    int localRelayNum = 0;     ///< relays on the host
    int extendRelayNum = 0;    ///< relays on extension modules
    int wirelessRelayNum = 0;  ///< wireless relays

    AlarmHostTARNCapability() = default;
    explicit AlarmHostTARNCapability(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("partitionNum", r.partitionNum);
        field("localZoneNum", r.localZoneNum);
        field("extendZoneNum", r.extendZoneNum);
        field("wirelessZoneNum", r.wirelessZoneNum);
        field("localRelayNum", r.localRelayNum);
        field("extendRelayNum", r.extendRelayNum);
        field("wirelessRelayNum", r.wirelessRelayNum);
    }
};

/// Commands to subsystems. The device defines the members.
struct CAPABILITYSET_API SubSysOperateCapability : JsonPart<SubSysOperateCapability>
{
    Json::Value root;  ///< everything the device sent

    /// Reads the part; null reads nothing.
    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// Commands to zones.
struct CAPABILITYSET_API ZoneOperateCapability : JsonPart<ZoneOperateCapability>
{
    bool isSptBypass = false;              ///< bypass one zone
    bool isSptBypassBatch = false;         ///< bypass several zones at once
    bool isSptBypassRecover = false;       ///< end the bypass of one zone
    bool isSptBypassRecoverBatch = false;  ///< end the bypass of several zones at once

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSptBypass", r.isSptBypass);
        field("isSptBypassBatch", r.isSptBypassBatch);
        field("isSptBypassRecover", r.isSptBypassRecover);
        field("isSptBypassRecoverBatch", r.isSptBypassRecoverBatch);
    }
};

/// Commands that a host accepts.
struct CAPABILITYSET_API AlarmHostOperateTARNCapability : JsonRecord<AlarmHostOperateTARNCapability>
{
    static constexpr const char* kKey = "HostControlCap";

    SubSysOperateCapability SubSysCap;        ///< commands to subsystems
    ZoneOperateCapability ZoneCap;            ///< commands to zones
    bool isSptOutputsCtrl = false;            ///< switch one output
    bool isSptOutputsCtrlBatch = false;       ///< switch several outputs at once
    bool isSptRadarFieldPreviewCtrl = false;  ///< control the preview of a radar field

    AlarmHostOperateTARNCapability() = default;
    explicit AlarmHostOperateTARNCapability(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("SubSysCap", r.SubSysCap);
        field("ZoneCap", r.ZoneCap);
        field("isSptOutputsCtrl", r.isSptOutputsCtrl);
        field("isSptOutputsCtrlBatch", r.isSptOutputsCtrlBatch);
        field("isSptRadarFieldPreviewCtrl", r.isSptRadarFieldPreviewCtrl);
    }
};

/// States that a host reports.
struct CAPABILITYSET_API AlarmHostStatusTARNCapability : JsonRecord<AlarmHostStatusTARNCapability>
{
    static constexpr const char* kKey = "HostStatusCap";

    bool isSptZones = false;          ///< zones
    bool isSptSubSystems = false;     ///< subsystems
    bool isSptExDev = false;          ///< extension devices
    bool isSptBatteries = false;      ///< batteries
    bool isSptCommunication = false;  ///< connections
    bool isSptAllHost = false;        ///< everything in one answer

    AlarmHostStatusTARNCapability() = default;
    explicit AlarmHostStatusTARNCapability(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSptZones", r.isSptZones);
        field("isSptSubSystems", r.isSptSubSystems);
        field("isSptExDev", r.isSptExDev);
        field("isSptBatteries", r.isSptBatteries);
        field("isSptCommunication", r.isSptCommunication);
        field("isSptAllHost", r.isSptAllHost);
    }
};

}  // namespace CapabilitySet
