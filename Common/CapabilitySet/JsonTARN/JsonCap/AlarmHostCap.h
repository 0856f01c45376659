// What an alarm host has, takes as commands, and tells of its state.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// How many partitions, zones and relays a host has.
struct CAPABILITYSET_API AlarmHostTARNCapability : JsonRecord<AlarmHostTARNCapability>
{
    static constexpr const char* kKey = "SecurityCPCap";

    int partitionNum = 0;
    int localZoneNum = 0;   ///< zones wired to the host
    int extendZoneNum = 0;  ///< zones on extension modules
    int wirelessZoneNum = 0;
    int localRelayNum = 0;   ///< relays on the host
    int extendRelayNum = 0;  ///< relays on extension modules
    int wirelessRelayNum = 0;

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

/// Commands to subsystems. The members are the device's own: see `root`.
struct CAPABILITYSET_API SubSysOperateCapability : JsonPart<SubSysOperateCapability>
{
    Json::Value root;  ///< everything the device said of the part

    void Parse(const Json::Value& value);

    template <class Record, class Field>
    static void Fields([[maybe_unused]] Record& r, [[maybe_unused]] Field&& field)
    {
    }
};

/// Commands to zones.
struct CAPABILITYSET_API ZoneOperateCapability : JsonPart<ZoneOperateCapability>
{
    bool isSptBypass = false;              ///< one zone can be bypassed
    bool isSptBypassBatch = false;         ///< several at once
    bool isSptBypassRecover = false;       ///< one zone can be taken back from bypass
    bool isSptBypassRecoverBatch = false;  ///< several at once

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSptBypass", r.isSptBypass);
        field("isSptBypassBatch", r.isSptBypassBatch);
        field("isSptBypassRecover", r.isSptBypassRecover);
        field("isSptBypassRecoverBatch", r.isSptBypassRecoverBatch);
    }
};

/// Commands that a host takes.
struct CAPABILITYSET_API AlarmHostOperateTARNCapability : JsonRecord<AlarmHostOperateTARNCapability>
{
    static constexpr const char* kKey = "HostControlCap";

    SubSysOperateCapability SubSysCap;
    ZoneOperateCapability ZoneCap;
    bool isSptOutputsCtrl = false;       ///< one output can be switched
    bool isSptOutputsCtrlBatch = false;  ///< several at once
    bool isSptRadarFieldPreviewCtrl = false;

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

/// States that a host tells.
struct CAPABILITYSET_API AlarmHostStatusTARNCapability : JsonRecord<AlarmHostStatusTARNCapability>
{
    static constexpr const char* kKey = "HostStatusCap";

    bool isSptZones = false;
    bool isSptSubSystems = false;
    bool isSptExDev = false;  ///< of extension devices
    bool isSptBatteries = false;
    bool isSptCommunication = false;
    bool isSptAllHost = false;  ///< of everything in one answer

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
