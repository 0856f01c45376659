// An alarm host's table of requests, and its answers to those that read its state.
// SPDX-License-Identifier: Apache-2.0
#include "Device/alarmhost/AlarmHost.h"

#include <algorithm>
#include <iterator>

#include "Device/Limits.h"
#include "Device/document/JsonDocument.h"
#include "Device/document/Text.h"

namespace Device
{
namespace
{

// Parses "1,3,5-8".
std::optional<std::vector<int>> ReadSelection(std::string_view text)
{
    std::vector<int> numbers;
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find(','));
        text.remove_prefix(std::min(part.size() + 1, text.size()));
        const size_t dash = part.find('-');
        int first = 0;
        int last = 0;
        if (!ReadNumber(part.substr(0, dash), first) ||
            !ReadNumber(dash == std::string_view::npos ? part : part.substr(dash + 1), last) ||
            first < 0 || last < first ||
            static_cast<size_t>(last) - static_cast<size_t>(first) > kMostBatch ||
            numbers.size() > kMostBatch) {
            return std::nullopt;
        }
        for (int number = first; number <= last; ++number) {
            numbers.push_back(number);
        }
    }
    return numbers.empty() ? std::nullopt : std::optional(std::move(numbers));
}

// The equipment with that last segment in the path of its configuration, or null.
const EquipmentNames* FindConfigured(std::string_view segment)
{
    const auto* found = std::ranges::find(kEquipment, segment, &EquipmentNames::configPath);
    return found == std::end(kEquipment) ? nullptr : found;
}

const EquipmentNames& NamesOf(Equipment equipment)
{
    return *std::ranges::find(kEquipment, equipment, &EquipmentNames::equipment);
}

// The entries of a batch of zones: {"zone": "1,3,5-8"}.
std::vector<Json::Value> SelectedZones(const Json::Value& body)
{
    std::vector<Json::Value> entries;
    for (const int zone :
         ReadSelection(JsonText(JsonMember(body, "zone"))).value_or(std::vector<int>())) {
        entries.emplace_back()["id"] = zone;
    }
    return entries;
}

}  // namespace

template <auto command>
Response AlarmHost::One(const Call& call)
{
    return Single(call, command);
}

template <auto command>
Response AlarmHost::SubSystems(const Call& call)
{
    return Batch(call, JsonEntries(JsonMember(call.body, "SubSysList"), "SubSys"), command);
}

template <auto command>
Response AlarmHost::Zones(const Call& call)
{
    return Batch(call, SelectedZones(call.body), command);
}

template <Equipment equipment>
Response AlarmHost::Switches(const Call& call)
{
    return Switch(call, NamesOf(equipment));
}

template <Equipment equipment>
Response AlarmHost::ReadStatus(const Call&)
{
    return Read(NamesOf(equipment));
}

Response AlarmHost::ControlCapability(const Call&)
{
    return Capability("HostControlCap");
}

Response AlarmHost::DetectorCapability(const Call&)
{
    return Capability("DetectorAlarmCap");
}

Response AlarmHost::ReadConfiguration(const Call& call)
{
    const EquipmentNames* names = FindConfigured(call.selectors[0]);
    if (names == nullptr) {
        return MakeStatus(Outcome::kNotSupport, call.request.target);
    }
    Json::Value document;
    if (call.selectors.size() == 1) {
        document["List"] = state_.Configuration(*names);
        return MakeJson(document);
    }
    const std::optional<int> id = call.Number(1);
    Json::Value config = id ? state_.Configuration(*names, *id) : Json::Value();
    if (config.isNull()) {
        return MakeStatus(Outcome::kInvalidId, call.request.target);
    }
    document[names->item] = std::move(config);
    return MakeJson(document);
}

Response AlarmHost::WriteConfiguration(const Call& call)
{
    const EquipmentNames* names = FindConfigured(call.selectors[0]);
    if (names == nullptr) {
        return MakeStatus(Outcome::kNotSupport, call.request.target);
    }
    const auto configure = [&](AlarmHostState& state, int id, const Json::Value& entry) {
        return state.Configure(*names, id, entry);
    };
    if (call.selectors.size() == 1) {
        return Batch(call, JsonEntries(JsonMember(call.body, "List"), names->item), configure);
    }
    const std::optional<int> id = call.Number(1);
    return Reply(call, configure(state_, id.value_or(-1), JsonMember(call.body, names->item)));
}

Response AlarmHost::Read(const EquipmentNames& names) const
{
    Json::Value document;
    document[names.itemList] = state_.StatusList(names);
    return MakeJson(document);
}

// Everything at once, for a client that has just connected.
Response AlarmHost::ReadHost(const Call&)
{
    Json::Value document;
    for (const EquipmentNames& names : kEquipment) {
        if (names.equipment != Equipment::Detectors) {
            document["HostStatus"][names.itemList] = state_.StatusList(names);
        }
    }
    return MakeJson(document);
}

Response AlarmHost::SearchLog(const Call& call)
{
    const Json::Value& description = JsonMember(call.body, "SearchDescription");
    if (call.request.body.size() > kMostSearchText) {
        return MakeStatus(Outcome::kTooLarge, call.request.target);
    }
    const std::optional<SearchDemand> demand = ReadSearchDemand(description);
    if (!description.isObject() || !demand) {
        return MakeStatus(Outcome::kBadJsonContent, call.request.target);
    }
    Json::Value document;
    document["SearchResult"] =
        MakeSearchPage(*demand, state_.FindLog(*demand), "matchList", "searchMatchItem");
    return MakeJson(document);
}

Response AlarmHost::Capability(const char* key) const
{
    Json::Value document;
    document[key] = JsonMember(start_, key);
    return MakeJson(document);
}

// Subsystems and zones are numbered in angle brackets, outputs and detectors without.
const Route<AlarmHost> AlarmHost::kRoutes[] = {
    {"POST", "TARN/SecurityCP/control/arm/*", &AlarmHost::ArmOne},
    {"POST", "TARN/SecurityCP/control/disarm/*", &AlarmHost::One<&AlarmHost::Disarm>},
    {"POST", "TARN/SecurityCP/control/clearAlarm/*", &AlarmHost::One<&AlarmHost::ClearAlarm>},
    {"POST", "TARN/SecurityCP/control/bypass/*", &AlarmHost::One<&AlarmHost::Bypass>},
    {"POST", "TARN/SecurityCP/control/bypassRecover/*", &AlarmHost::One<&AlarmHost::Recover>},
    {"POST", "TARN/SecurityCP/control/arm", &AlarmHost::SubSystems<&AlarmHost::Arm>},
    {"POST", "TARN/SecurityCP/control/disarm", &AlarmHost::SubSystems<&AlarmHost::Disarm>},
    {"POST", "TARN/SecurityCP/control/clearAlarm", &AlarmHost::SubSystems<&AlarmHost::ClearAlarm>},
    {"POST", "TARN/SecurityCP/control/bypass", &AlarmHost::Zones<&AlarmHost::Bypass>},
    {"POST", "TARN/SecurityCP/control/bypassRecover", &AlarmHost::Zones<&AlarmHost::Recover>},
    {"POST", "TARN/SecurityCP/control/outputs", &AlarmHost::Switches<Equipment::Outputs>},
    {"PUT", "TARN/SecurityCP/control/outputs/*", &AlarmHost::Switches<Equipment::Outputs>},
    {"POST", "TARN/SecurityCP/control/sirens", &AlarmHost::Switches<Equipment::Sirens>},
    {"PUT", "TARN/SecurityCP/control/sirens/*", &AlarmHost::Switches<Equipment::Sirens>},
    {"GET", "TARN/SecurityCP/control/capabilities", &AlarmHost::ControlCapability},
    {"GET", "TARN/SecurityCP/status/host", &AlarmHost::ReadHost},
    {"GET", "TARN/SecurityCP/status/subSystems", &AlarmHost::ReadStatus<Equipment::SubSystems>},
    {"GET", "TARN/SecurityCP/status/zones", &AlarmHost::ReadStatus<Equipment::Zones>},
    {"GET", "TARN/SecurityCP/status/outputs", &AlarmHost::ReadStatus<Equipment::Outputs>},
    {"GET", "TARN/SecurityCP/status/sirens", &AlarmHost::ReadStatus<Equipment::Sirens>},
    {"GET", "TARN/SecurityCP/status/exDev", &AlarmHost::ReadStatus<Equipment::Modules>},
    {"GET", "TARN/SecurityCP/Configuration/*", &AlarmHost::ReadConfiguration},
    {"PUT", "TARN/SecurityCP/Configuration/*", &AlarmHost::WriteConfiguration},
    {"GET", "TARN/SecurityCP/Configuration/*/*", &AlarmHost::ReadConfiguration},
    {"PUT", "TARN/SecurityCP/Configuration/*/*", &AlarmHost::WriteConfiguration},
    {"POST", "TARN/SecurityCP/Log/search", &AlarmHost::SearchLog},
    {"GET", "TARN/FireControl/Status/detectorStatus", &AlarmHost::ReadStatus<Equipment::Detectors>},
    {"GET", "TARN/FireControl/Control/detectorAlarm/capabilities", &AlarmHost::DetectorCapability},
    {"PUT", "TARN/FireControl/Control/detectorAlarm/*", &AlarmHost::CommandDetector},
    {"PUT", "TARN/FireControl/Control/detectorAlarm/*/*", &AlarmHost::CommandDetector},
    // Simulates what happens at the site, such as an intruder. No client sends this.
    {"PUT", "TARN/SDK/site/zones/*", &AlarmHost::MoveZone},
};

std::optional<Response> AlarmHost::Answer(const ParsedRequest& request)
{
    const std::lock_guard lock(mutex_);
    return AnswerByRoute<AlarmHost>(*this, kRoutes, request);
}

std::unique_ptr<Behaviour> MakeAlarmHost(const Profile& profile)
{
    const auto start = profile.state.find("alarmHost");
    return start == profile.state.end() ? nullptr : std::make_unique<AlarmHost>(start->second);
}

}  // namespace Device
