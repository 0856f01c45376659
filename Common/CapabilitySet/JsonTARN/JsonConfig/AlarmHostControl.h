// What a client tells an alarm host to do: bypass zones, switch outputs, search the log, arm.
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

    std::string zone;  ///< zone numbers, as the device's capability lists the form

    AlarmHostBypassCfg() = default;
    explicit AlarmHostBypassCfg(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("zone", r.zone);
    }
};

/// Outputs to switch, and how.
struct CAPABILITYSET_API AlarmHostOutputCfg : JsonRecord<AlarmHostOutputCfg>
{
    static constexpr const char* kKey = "OutputsCtrl";

    std::string switchState;  ///< key "switch": "open" or "close"
    std::vector<int> ids;     ///< numbers of the outputs

    AlarmHostOutputCfg() = default;
    explicit AlarmHostOutputCfg(const std::string& text) { Parse(text); }

    /// Empty, "switch" included, when there are no outputs to switch.
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
    std::string searchID;  ///< of the client's choice, the same for all pages of one search
    std::string startTime;
    std::string endTime;
    int searchResultPosition = 0;  ///< index of the first entry wanted
    int maxResults = 0;            ///< size of a page

    /// The request body; empty when memory ran out.
    [[nodiscard]] std::string Make() const;
};

/// A command to a fire detector.
struct CAPABILITYSET_API DetectorSilence : JsonRecord<DetectorSilence>
{
    static constexpr const char* kKey = "DetectorAlarm";

    std::string cmd;  ///< one of DetectorSilenceCap's

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
    int id = 0;
    std::string armType;
    std::string devIndex;

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
    std::vector<OperateSubSystem> subSystems;

    // Kept: clients rely on the bodies being made of the argument, not of the record called on.

    /// The body that arms `info`'s subsystems.
    [[nodiscard]] std::string CreatArmJsonParser(const OperateSubSystemsInfo& info) const;
    /// The body that disarms or clears them: the same without "armType".
    [[nodiscard]] std::string CreatDisarmAndClearAlarmJsonParser(
        const OperateSubSystemsInfo& info) const;
};

}  // namespace CapabilitySet
