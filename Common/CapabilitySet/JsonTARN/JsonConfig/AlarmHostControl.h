// Commands to an alarm host: bypass zones, switch outputs, arm, search the log.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The zones of a batch bypass.
struct CAPABILITYSET_API AlarmHostBypassCfg : JsonRecord<AlarmHostBypassCfg>
{
    static constexpr const char* kKey = "";

    std::string zone;  ///< zone numbers, in a form that the host's capability lists

    AlarmHostBypassCfg() = default;
    explicit AlarmHostBypassCfg(const std::string& text) { Parse(text); }

    /// The body {"zone": "<text>"} and nothing else, whatever was parsed. Empty when memory ran
    /// out.
    [[nodiscard]] std::string Make() const;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("zone", r.zone);
    }
};

/// The outputs to switch, and how.
struct CAPABILITYSET_API AlarmHostOutputCfg : JsonRecord<AlarmHostOutputCfg>
{
    static constexpr const char* kKey = "OutputsCtrl";

    std::string switchState;  ///< "switch": "open" or "close"
    std::vector<int> ids;     ///< "List" of "id": output numbers

    AlarmHostOutputCfg() = default;
    explicit AlarmHostOutputCfg(const std::string& text) { Parse(text); }

    /// The request body; empty if `ids` is empty or memory ran out.
    [[nodiscard]] std::string Make() const;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("switch", r.switchState);
        field("List", r.ids, as::Wrapped{"id"});
    }
};

/// Which part of the host's log to search, and which page of the result.
struct CAPABILITYSET_API AlarmHostLogConditionDescription
{
    std::string searchID;          ///< chosen by the client, the same for all pages
    std::string startTime;         ///< ISO 8601
    std::string endTime;           ///< ISO 8601
    int searchResultPosition = 0;  ///< index of the first entry wanted, from 0
    int maxResults = 0;            ///< page size

    /// The request body; empty when memory ran out.
    // Kept: the body has the keys "endTIme" and "searchResultPostion", and numbers as text.
    [[nodiscard]] std::string Make() const;
};

/// A command to a fire detector.
struct CAPABILITYSET_API DetectorSilence : JsonRecord<DetectorSilence>
{
    static constexpr const char* kKey = "DetectorAlarm";

    std::string cmd;  ///< a command of DetectorSilenceCap, such as "silence"

    DetectorSilence() = default;
    explicit DetectorSilence(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("cmd", r.cmd);
    }
};

/// A subsystem to arm, disarm or clear.
struct CAPABILITYSET_API OperateSubSystem : JsonPart<OperateSubSystem>
{
    int id = 0;            ///< subsystem number
    std::string armType;   ///< way of arming, as the host's capability lists it
    std::string devIndex;  ///< the device it belongs to

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("id", r.id);
        field("armType", r.armType);
        field("devIndex", r.devIndex);
    }
};

/// Subsystems to arm, disarm or clear together. The client sends the bodies itself.
struct CAPABILITYSET_API OperateSubSystemsInfo
{
    std::vector<OperateSubSystem> subSystems;  ///< "SubSysList": the subsystems

    // Kept: clients rely on the bodies being made of the argument, not of the record called on.

    /// The body that arms the subsystems of `info`. Empty when memory ran out.
    // Kept: both bodies are built from the argument, not from this record.
    [[nodiscard]] std::string CreatArmJsonParser(const OperateSubSystemsInfo& info) const;
    /// The body that disarms or clears them: the same without "armType".
    [[nodiscard]] std::string CreatDisarmAndClearAlarmJsonParser(
        const OperateSubSystemsInfo& info) const;
};

}  // namespace CapabilitySet
