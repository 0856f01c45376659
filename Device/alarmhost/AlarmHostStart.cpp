// The initial state of an alarm host.
// SPDX-License-Identifier: Apache-2.0
#include "Device/Behaviour.h"
#include "Device/alarmhost/AlarmHostState.h"
#include "Device/document/DateTime.h"
#include "Device/document/JsonDocument.h"

namespace Device
{
namespace
{

// The state of an item where the profile's document does not give it.
Json::Value StatusDefaults(Equipment equipment)
{
    Json::Value status;
    switch (equipment) {
        case Equipment::SubSystems:
            status["arming"] = "disarm";
            break;
        case Equipment::Zones:
            for (const char* flag : {"open", "bypassed", "alarm", "tamper"}) {
                status[flag] = false;
            }
            break;
        case Equipment::Outputs:
        case Equipment::Sirens:
            status["switch"] = "close";
            break;
        case Equipment::Modules:
            status["status"] = "online";
            break;
        case Equipment::Detectors:
            status["status"] = "normal";
            status["silenced"] = false;
            break;
    }
    return status;
}

std::vector<std::string> Options(const Json::Value& limits)
{
    std::vector<std::string> options;
    for (const Json::Value& option : JsonMember(limits, "@opt")) {
        options.push_back(JsonText(option));
    }
    return options;
}

}  // namespace

AlarmHostState::AlarmHostState(const Json::Value& start)
    : ways_(Options(
          JsonMember(JsonMember(JsonMember(start, "HostControlCap"), "SubSysCap"), "ways"))),
      detectorCommands_(Options(JsonMember(JsonMember(start, "DetectorAlarmCap"), "cmd")))
{
    const std::optional<std::int64_t> time = ReadDateTime(JsonText(JsonMember(start, "time")));
    if (!time || ways_.empty()) {
        throw StateFault(R"(an alarm host needs a "time" and "ways" of arming)");
    }
    startTime_ = *time;
    for (const EquipmentNames& names : kEquipment) {
        ReadItems(JsonMember(start, names.start), names);
    }
    ReadLog(JsonMember(start, "log"));
}

void AlarmHostState::ReadItems(const Json::Value& start, const EquipmentNames& names)
{
    for (const Json::Value& entry : start) {
        const std::optional<int> id = JsonNumber(JsonMember(entry, "id"));
        if (!id) {
            throw StateFault(std::string("an entry of \"") + names.start + R"(" has no "id")");
        }
        Item item{entry, StatusDefaults(names.equipment)};
        item.config.removeMember("state");
        const Json::Value& state = JsonMember(entry, "state");
        for (const std::string& key :
             state.isObject() ? state.getMemberNames() : std::vector<std::string>()) {
            item.status[key] = state[key];
        }
        ItemsOf(names.equipment).emplace(*id, std::move(item));
    }
}

void AlarmHostState::ReadLog(const Json::Value& start)
{
    for (const Json::Value& entry : start) {
        const std::optional<std::int64_t> time = ReadDateTime(JsonText(JsonMember(entry, "time")));
        if (!time) {
            throw StateFault(R"(an entry of "log" has no "time")");
        }
        log_.push_back({*time, entry});
        log_.back().descriptor["index"] = nextEntry_++;
    }
}

}  // namespace Device
