// What the commands do to an alarm host.
// SPDX-License-Identifier: Apache-2.0
#include "Device/alarmhost/AlarmHostState.h"

#include <algorithm>

#include "Device/Limits.h"
#include "Device/document/DateTime.h"
#include "Device/document/JsonDocument.h"

namespace Device
{
namespace
{

constexpr const char* kDisarmed = "disarm";
// Sirens and outputs are "open" while they are on.
constexpr const char* kOn = "open";
constexpr const char* kOff = "close";

bool IsAlwaysSupervised(const Json::Value& zone)
{
    constexpr std::string_view kTypes[] = {"24hour", "fire", "emergency"};
    return std::ranges::find(kTypes, JsonText(JsonMember(zone, "zoneType"))) != std::end(kTypes);
}

int SubSystemOf(const Json::Value& zone)
{
    return JsonNumber(JsonMember(zone, "subSystemNo")).value_or(0);
}

std::string Numbered(const char* what, int id)
{
    return what + (" " + std::to_string(id));
}

Verdict Missing(const char* what, int id)
{
    return {&Outcome::kInvalidId, "there is no " + Numbered(what, id)};
}

}  // namespace

const AlarmHostState::Items& AlarmHostState::ItemsOf(Equipment equipment) const
{
    static const Items none;
    const auto found = items_.find(equipment);
    return found == items_.end() ? none : found->second;
}

AlarmHostState::Item* AlarmHostState::Find(Equipment equipment, int id)
{
    Items& items = ItemsOf(equipment);
    const auto found = items.find(id);
    return found == items.end() ? nullptr : &found->second;
}

Verdict AlarmHostState::Arm(int subSystem, const std::string& way)
{
    const auto decide = [&]() -> Verdict {
        Item* found = Find(Equipment::SubSystems, subSystem);
        if (found == nullptr) {
            return Missing("subsystem", subSystem);
        }
        if (std::ranges::find(ways_, way) == ways_.end()) {
            return {&Outcome::kBadParameters, "there is no way \"" + way + "\" of arming"};
        }
        if (!JsonMember(found->config, "enabled").isBool() || !found->config["enabled"].asBool()) {
            return {&Outcome::kSubSystemDisabled,
                    Numbered("subsystem", subSystem) + " is disabled"};
        }
        for (const auto& [id, zone] : ItemsOf(Equipment::Zones)) {
            if (SubSystemOf(zone.config) == subSystem && zone.config["enable"] == true &&
                zone.status["open"] == true && zone.status["bypassed"] == false &&
                InWay(zone, way)) {
                return {&Outcome::kZoneOpen, Numbered("zone", id) + " is open"};
            }
        }
        found->status["arming"] = way;
        return {};
    };
    return Log("operation", "arm " + way, Numbered("subsystem", subSystem), decide());
}

Verdict AlarmHostState::Disarm(int subSystem)
{
    Item* found = Find(Equipment::SubSystems, subSystem);
    if (found != nullptr) {
        found->status["arming"] = kDisarmed;
    }
    return Log("operation", "disarm", Numbered("subsystem", subSystem),
               found != nullptr ? Verdict() : Missing("subsystem", subSystem));
}

Verdict AlarmHostState::ClearAlarm(int subSystem)
{
    const bool known = Find(Equipment::SubSystems, subSystem) != nullptr;
    for (auto& [id, zone] : ItemsOf(Equipment::Zones)) {
        if (SubSystemOf(zone.config) == subSystem) {
            zone.status["alarm"] = false;
        }
    }
    if (known && !AnyAlarm(nullptr)) {
        SwitchSirens(kOff);
    }
    return Log("operation", "clearAlarm", Numbered("subsystem", subSystem),
               known ? Verdict() : Missing("subsystem", subSystem));
}

Verdict AlarmHostState::Bypass(int zone, bool bypassed)
{
    const auto decide = [&]() -> Verdict {
        Item* found = Find(Equipment::Zones, zone);
        if (found == nullptr) {
            return Missing("zone", zone);
        }
        if (bypassed && IsAlwaysSupervised(found->config)) {
            return {&Outcome::kNotBypassable, Numbered("zone", zone) + " is always supervised"};
        }
        if (ArmedWay(SubSystemOf(found->config)) != kDisarmed) {
            return {&Outcome::kSubSystemArmed,
                    Numbered("subsystem", SubSystemOf(found->config)) + " is armed"};
        }
        found->status["bypassed"] = bypassed;
        return {};
    };
    return Log("operation", bypassed ? "bypass" : "bypassRecover", Numbered("zone", zone),
               decide());
}

Verdict AlarmHostState::Switch(const EquipmentNames& names, int id, const std::string& position)
{
    const char* what = names.equipment == Equipment::Sirens ? "siren" : "output";
    const auto decide = [&]() -> Verdict {
        Item* found = Find(names.equipment, id);
        if (found == nullptr) {
            return Missing(what, id);
        }
        if (position != kOn && position != kOff) {
            return {&Outcome::kBadParameters, "a switch is either open or close"};
        }
        found->status["switch"] = position;
        return {};
    };
    return Log("operation", position, Numbered(what, id), decide());
}

Verdict AlarmHostState::CommandDetector(int detector, const std::string& command)
{
    const auto decide = [&]() -> Verdict {
        Item* found = Find(Equipment::Detectors, detector);
        if (found == nullptr) {
            return Missing("detector", detector);
        }
        if (std::ranges::find(detectorCommands_, command) == detectorCommands_.end()) {
            return {&Outcome::kBadParameters, "detectors know no command \"" + command + "\""};
        }
        if (command == "silence") {
            found->status["silenced"] = true;
        } else if (command == "reset") {
            for (const std::string& key : found->status.getMemberNames()) {
                Json::Value& sensor = found->status[key];
                if (sensor.isObject() && JsonMember(sensor, "status") == "abnormal") {
                    sensor["status"] = "normal";
                }
            }
            found->status["status"] = "normal";
            found->status["silenced"] = false;
        }
        return {};
    };
    return Log("operation", command, Numbered("detector", detector), decide());
}

Verdict AlarmHostState::CommandDetector(int channel, int detectorOfChannel,
                                        const std::string& command)
{
    for (const auto& [id, item] : ItemsOf(Equipment::Detectors)) {
        if (JsonNumber(JsonMember(item.config, "channelID")) == channel &&
            JsonNumber(JsonMember(item.config, "channelDetectorID")) == detectorOfChannel) {
            return CommandDetector(id, command);
        }
    }
    return Log("operation", command, Numbered("channel", channel),
               Missing("such detector at channel", channel));
}

Verdict AlarmHostState::MoveZone(int zone, bool open)
{
    Item* found = Find(Equipment::Zones, zone);
    if (found == nullptr) {
        return Missing("zone", zone);
    }
    found->status["open"] = open;
    const std::string way = ArmedWay(SubSystemOf(found->config));
    const bool supervised =
        IsAlwaysSupervised(found->config) || (way != kDisarmed && InWay(*found, way));
    if (open && supervised && found->config["enable"] == true &&
        found->status["bypassed"] == false) {
        found->status["alarm"] = true;
        SwitchSirens(kOn);
        return Log("alarm", "zoneAlarm", Numbered("zone", zone), {});
    }
    return Log("event", open ? "zoneOpen" : "zoneClosed", Numbered("zone", zone), {});
}

std::string AlarmHostState::ArmedWay(int subSystem) const
{
    const Items& items = ItemsOf(Equipment::SubSystems);
    const auto found = items.find(subSystem);
    return found == items.end() ? kDisarmed : JsonText(found->second.status["arming"]);
}

// People who stay in the building may walk through the zones behind an entrance.
bool AlarmHostState::InWay(const Item& zone, const std::string& way)
{
    return !(way == "stay" && JsonMember(zone.config, "zoneType") == "follow");
}

bool AlarmHostState::AnyAlarm(const int* subSystem) const
{
    return std::ranges::any_of(ItemsOf(Equipment::Zones), [&](const auto& entry) {
        const Item& zone = entry.second;
        return zone.status["alarm"] == true &&
               (subSystem == nullptr || SubSystemOf(zone.config) == *subSystem);
    });
}

void AlarmHostState::SwitchSirens(const char* position)
{
    for (auto& [id, siren] : ItemsOf(Equipment::Sirens)) {
        siren.status["switch"] = position;
    }
}

Verdict AlarmHostState::Log(const char* type, const std::string& event, const std::string& object,
                            Verdict verdict)
{
    const auto running = std::chrono::duration_cast<std::chrono::seconds>(
        std::chrono::steady_clock::now() - started_);
    LogEntry entry;
    entry.time = startTime_ + running.count();
    entry.descriptor["index"] = nextEntry_++;
    entry.descriptor["time"] = WriteDateTime(entry.time);
    entry.descriptor["type"] = type;
    entry.descriptor["event"] = event.substr(0, kMostEventText);
    entry.descriptor["object"] = object;
    entry.descriptor["result"] = verdict.outcome->subStatusCode;
    log_.push_back(std::move(entry));
    if (log_.size() > kMostLogEntries) {
        log_.pop_front();
    }
    return verdict;
}

std::vector<Json::Value> AlarmHostState::FindLog(const SearchDemand& demand) const
{
    std::vector<Json::Value> found;
    for (const LogEntry& entry : log_) {
        if (demand.Wants(entry.time)) {
            found.emplace_back()["logDescriptor"] = entry.descriptor;
        }
    }
    return found;
}

}  // namespace Device
