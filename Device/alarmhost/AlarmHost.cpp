// An alarm host: the requests that command it and those that read its state.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <functional>
#include <iterator>
#include <mutex>

#include "Device/JsonDocument.h"
#include "Device/Routes.h"
#include "Device/alarmhost/AlarmHostState.h"

namespace Device
{
namespace
{

// How many zones one batch may name.
constexpr size_t kMaxBatch = 1000;

const Verdict kNoNumber{&Outcome::kBadParameters, "this is no number"};

Response Reply(const Json::Value& document)
{
    return {200, "application/json", document.toStyledString()};
}

Response Reply(const Call& call, const Verdict& verdict)
{
    Json::Value more;
    if (!verdict.message.empty()) {
        more["errorMsg"] = verdict.message;
    }
    return MakeJsonStatus(*verdict.outcome, call.request.target, more);
}

// "1,3,5-8" as numbers; nothing when it is no such text.
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
            static_cast<size_t>(last) - static_cast<size_t>(first) > kMaxBatch ||
            numbers.size() > kMaxBatch) {
            return std::nullopt;
        }
        for (int number = first; number <= last; ++number) {
            numbers.push_back(number);
        }
    }
    return numbers.empty() ? std::nullopt : std::optional(std::move(numbers));
}

// The entries of a list, each the object under `item`.
std::vector<Json::Value> Entries(const Json::Value& list, const char* item)
{
    std::vector<Json::Value> entries;
    for (const Json::Value& entry : list.isArray() ? list : Json::Value(Json::arrayValue)) {
        entries.push_back(*item == '\0' ? entry : JsonMember(entry, item));
    }
    return entries;
}

// The equipment whose configuration stands at that segment of a path, or null.
const EquipmentNames* FindConfigured(std::string_view segment)
{
    const auto* found = std::ranges::find(kEquipment, segment, &EquipmentNames::configPath);
    return found == std::end(kEquipment) ? nullptr : found;
}

const EquipmentNames& NamesOf(Equipment equipment)
{
    return *std::ranges::find(kEquipment, equipment, &EquipmentNames::equipment);
}

// The entries of a batch that names zones: {"zone": "1,3,5-8"}.
std::vector<Json::Value> SelectedZones(const Json::Value& body)
{
    std::vector<Json::Value> entries;
    for (const int zone :
         ReadSelection(JsonText(JsonMember(body, "zone"))).value_or(std::vector<int>())) {
        entries.emplace_back()["id"] = zone;
    }
    return entries;
}

class AlarmHost : public Behaviour
{
public:
    explicit AlarmHost(const Json::Value& start) : start_(start), state_(start) {}

    std::optional<Response> Answer(const ParsedRequest& request) override;

private:
    // Does something to the item of that number; `entry` is what the request says of it.
    using Command = std::function<Verdict(AlarmHostState& state, int id, const Json::Value& entry)>;

    static Verdict Arm(AlarmHostState& state, int id, const Json::Value& entry)
    {
        return state.Arm(id, JsonText(JsonMember(entry, "armType")));
    }
    static Verdict Disarm(AlarmHostState& state, int id, const Json::Value&)
    {
        return state.Disarm(id);
    }
    static Verdict ClearAlarm(AlarmHostState& state, int id, const Json::Value&)
    {
        return state.ClearAlarm(id);
    }
    static Verdict Bypass(AlarmHostState& state, int id, const Json::Value&)
    {
        return state.Bypass(id, true);
    }
    static Verdict Recover(AlarmHostState& state, int id, const Json::Value&)
    {
        return state.Bypass(id, false);
    }

    Response Single(const Call& call, const Command& command, const Json::Value& entry = {});
    Response Batch(const Call& call, const std::vector<Json::Value>& entries,
                   const Command& command);

    template <auto command>
    Response One(const Call& call)
    {
        return Single(call, command);
    }
    template <auto command>
    Response SubSystems(const Call& call)
    {
        return Batch(call, Entries(JsonMember(call.body, "SubSysList"), "SubSys"), command);
    }
    template <auto command>
    Response Zones(const Call& call)
    {
        return Batch(call, SelectedZones(call.body), command);
    }
    template <Equipment equipment>
    Response Switches(const Call& call)
    {
        return Switch(call, NamesOf(equipment));
    }
    template <Equipment equipment>
    Response ReadStatus(const Call&)
    {
        return Read(NamesOf(equipment));
    }
    Response ArmOne(const Call& call);
    Response Switch(const Call& call, const EquipmentNames& names);
    Response CommandDetector(const Call& call);
    Response MoveZone(const Call& call);
    Response ReadConfiguration(const Call& call);
    Response WriteConfiguration(const Call& call);
    [[nodiscard]] Response Read(const EquipmentNames& names) const;
    Response ReadHost(const Call& call);
    Response SearchLog(const Call& call);
    Response ControlCapability(const Call&) { return Capability("HostControlCap"); }
    Response DetectorCapability(const Call&) { return Capability("DetectorAlarmCap"); }
    [[nodiscard]] Response Capability(const char* key) const;

    static const Route<AlarmHost> kRoutes[];

    const Json::Value start_;
    std::mutex mutex_;
    AlarmHostState state_;
};

Response AlarmHost::Single(const Call& call, const Command& command, const Json::Value& entry)
{
    const std::optional<int> id = call.Number(0);
    return Reply(call, id ? command(state_, *id, entry) : kNoNumber);
}

Response AlarmHost::ArmOne(const Call& call)
{
    const std::string* ways = call.request.FindParameter("ways");
    Json::Value entry;
    entry["armType"] = std::string(ways == nullptr ? "" : WithoutBrackets(*ways));
    return Single(call, &Arm, entry);
}

// Carries out what it can; "ErrorList" names the items that it could not be carried out on.
Response AlarmHost::Batch(const Call& call, const std::vector<Json::Value>& entries,
                          const Command& command)
{
    if (entries.empty()) {
        return MakeStatus(Outcome::kBadJsonContent, call.request.target);
    }
    Json::Value more;
    Json::Value& errors = more["ErrorList"] = Json::Value(Json::arrayValue);
    Status first = Outcome::kOk;
    for (const Json::Value& entry : entries) {
        const std::optional<int> id = JsonNumber(JsonMember(entry, "id"));
        const Verdict verdict = id ? command(state_, *id, entry) : kNoNumber;
        if (verdict.Ok()) {
            continue;
        }
        first = errors.empty() ? *verdict.outcome : first;
        Json::Value& error = errors.append(Json::Value());
        error["id"] = id.value_or(-1);
        error["subStatusCode"] = verdict.outcome->subStatusCode;
        error["errorMsg"] = verdict.message;
    }
    // A batch that was carried out in part is no refusal: the list tells the rest.
    first.httpStatus = 200;
    return MakeJsonStatus(first, call.request.target, more);
}

Response AlarmHost::Switch(const Call& call, const EquipmentNames& names)
{
    const Json::Value& body =
        JsonMember(call.body, names.equipment == Equipment::Sirens ? "SirensCtrl" : "OutputsCtrl");
    const std::string position = JsonText(JsonMember(body, "switch"));
    if (position.empty()) {
        return MakeStatus(Outcome::kBadJsonContent, call.request.target);
    }
    const auto command = [&](AlarmHostState& state, int id, const Json::Value&) {
        return state.Switch(names, id, position);
    };
    return call.selectors.empty() ? Batch(call, Entries(JsonMember(body, "List"), ""), command)
                                  : Single(call, command);
}

// One selector is a detector of the host; two are a channel and one of the detectors at it.
Response AlarmHost::CommandDetector(const Call& call)
{
    const std::string cmd = JsonText(JsonMember(JsonMember(call.body, "DetectorAlarm"), "cmd"));
    return Single(call, [&](AlarmHostState& state, int first, const Json::Value&) {
        if (call.selectors.size() == 1) {
            return state.CommandDetector(first, cmd);
        }
        const std::optional<int> second = call.Number(1);
        return second ? state.CommandDetector(first, *second, cmd) : kNoNumber;
    });
}

Response AlarmHost::MoveZone(const Call& call)
{
    const std::string* open = call.request.FindParameter("open");
    if (open == nullptr || (*open != "true" && *open != "false")) {
        return MakeStatus(Outcome::kBadParameters, call.request.target);
    }
    return Single(call, [&](AlarmHostState& state, int id, const Json::Value&) {
        return state.MoveZone(id, *open == "true");
    });
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
        return Reply(document);
    }
    const std::optional<int> id = call.Number(1);
    Json::Value config = id ? state_.Configuration(*names, *id) : Json::Value();
    if (config.isNull()) {
        return MakeStatus(Outcome::kInvalidId, call.request.target);
    }
    document[names->item] = std::move(config);
    return Reply(document);
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
        return Batch(call, Entries(JsonMember(call.body, "List"), names->item), configure);
    }
    const std::optional<int> id = call.Number(1);
    return Reply(call, configure(state_, id.value_or(-1), JsonMember(call.body, names->item)));
}

Response AlarmHost::Read(const EquipmentNames& names) const
{
    Json::Value document;
    document[names.itemList] = state_.StatusList(names);
    return Reply(document);
}

// Everything at once, as a client shows it when it connects.
Response AlarmHost::ReadHost(const Call&)
{
    Json::Value document;
    for (const EquipmentNames& names : kEquipment) {
        if (names.equipment != Equipment::Detectors) {
            document["HostStatus"][names.itemList] = state_.StatusList(names);
        }
    }
    return Reply(document);
}

Response AlarmHost::SearchLog(const Call& call)
{
    const Json::Value& description = JsonMember(call.body, "SearchDescription");
    const std::optional<SearchDemand> demand = ReadSearchDemand(description);
    if (!description.isObject() || !demand) {
        return MakeStatus(Outcome::kBadJsonContent, call.request.target);
    }
    Json::Value document;
    document["SearchResult"] =
        MakeSearchPage(*demand, state_.FindLog(*demand), "matchList", "searchMatchItem");
    return Reply(document);
}

Response AlarmHost::Capability(const char* key) const
{
    Json::Value document;
    document[key] = JsonMember(start_, key);
    return Reply(document);
}

// Numbers of subsystems and zones come in angle brackets, those of outputs and detectors without.
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
    // What happens at the site: no client's request, but a way to play an intruder.
    {"PUT", "TARN/SDK/site/zones/*", &AlarmHost::MoveZone},
};

std::optional<Response> AlarmHost::Answer(const ParsedRequest& request)
{
    const std::lock_guard lock(mutex_);
    return AnswerByRoute<AlarmHost>(*this, kRoutes, request);
}

}  // namespace

std::unique_ptr<Behaviour> MakeAlarmHost(const Profile& profile)
{
    const auto start = profile.state.find("alarmHost");
    return start == profile.state.end() ? nullptr : std::make_unique<AlarmHost>(start->second);
}

}  // namespace Device
