// Configuration and state of an alarm host's equipment as JSON.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>

#include "Device/Limits.h"
#include "Device/alarmhost/AlarmHostState.h"
#include "Device/document/JsonDocument.h"

namespace Device
{
namespace
{

constexpr const char* kLinkedZones = "linkageZones";

Verdict BadContent(const std::string& message)
{
    return {&Outcome::kBadJsonContent, message};
}

bool SameKind(const Json::Value& left, const Json::Value& right)
{
    return left.type() == right.type() || (left.isNumeric() && right.isNumeric());
}

}  // namespace

Json::Value AlarmHostState::Configuration(const EquipmentNames& names) const
{
    Json::Value list(Json::arrayValue);
    for (const auto& [id, item] : ItemsOf(names.equipment)) {
        list.append(Json::Value())[names.item] = Configuration(names, id);
    }
    return list;
}

Json::Value AlarmHostState::Configuration(const EquipmentNames& names, int id) const
{
    const Items& items = ItemsOf(names.equipment);
    const auto found = items.find(id);
    if (found == items.end()) {
        return {};
    }
    Json::Value config = found->second.config;
    if (names.equipment == Equipment::SubSystems) {
        Json::Value& zones = config[kLinkedZones] = Json::Value(Json::arrayValue);
        for (const auto& [zone, item] : ItemsOf(Equipment::Zones)) {
            if (item.config["subSystemNo"] == id) {
                zones.append(zone);
            }
        }
    }
    return config;
}

Verdict AlarmHostState::Configure(const EquipmentNames& names, int id, const Json::Value& changes)
{
    const Json::Value before = Configuration(names, id);
    if (before.isNull()) {
        return {&Outcome::kInvalidId,
                std::string("there is no ") + names.item + " " + std::to_string(id)};
    }
    if (!changes.isObject()) {
        return BadContent("a configuration is an object");
    }
    for (const std::string& key : changes.getMemberNames()) {
        if (!before.isMember(key) || !SameKind(before[key], changes[key])) {
            return BadContent("\"" + key + "\" does not exist or has another type");
        }
    }
    if (changes.toStyledString().size() > kMostItemText) {
        return BadContent("a configuration has at most " + std::to_string(kMostItemText >> 10) +
                          " KiB");
    }
    if (changes.isMember("id") && changes["id"] != id) {
        return BadContent("an id cannot be changed");
    }
    Json::Value& config = Find(names.equipment, id)->config;
    for (const std::string& key : changes.getMemberNames()) {
        if (key == kLinkedZones && names.equipment == Equipment::SubSystems) {
            LinkZones(id, changes[key]);
        } else {
            config[key] = changes[key];
        }
    }
    return Log("operation", "configure", names.item + (" " + std::to_string(id)), {});
}

// A zone knows its subsystem; the list of a subsystem's zones is derived from that.
void AlarmHostState::LinkZones(int subSystem, const Json::Value& zones)
{
    for (auto& [id, zone] : ItemsOf(Equipment::Zones)) {
        Json::Value& owner = zone.config["subSystemNo"];
        if (std::ranges::find(zones, Json::Value(id)) != zones.end()) {
            owner = subSystem;
        } else if (owner == subSystem) {
            owner = 0;
        }
    }
}

Json::Value AlarmHostState::StatusOf(const EquipmentNames& names, const Item& item) const
{
    Json::Value status = item.status;
    const int id = JsonNumber(item.config["id"]).value_or(0);
    // What a person needs to recognise the item.
    for (const char* key : {"id", "name", "zoneName", "subSystemNo", "detectorType", "channelID",
                            "channelDetectorID", "type"}) {
        if (item.config.isMember(key)) {
            status[key] = item.config[key];
        }
    }
    if (names.equipment == Equipment::SubSystems) {
        status["alarm"] = AnyAlarm(&id);
    } else if (names.equipment == Equipment::Zones) {
        status["armed"] = ArmedWay(JsonNumber(item.config["subSystemNo"]).value_or(0)) != "disarm";
    }
    return status;
}

Json::Value AlarmHostState::StatusList(const EquipmentNames& names) const
{
    Json::Value list(Json::arrayValue);
    for (const auto& [id, item] : ItemsOf(names.equipment)) {
        list.append(Json::Value())[names.item] = StatusOf(names, item);
    }
    return list;
}

}  // namespace Device
