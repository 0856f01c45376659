// An alarm host's answers to commands, for one item or many.
// SPDX-License-Identifier: Apache-2.0
#include "Device/alarmhost/AlarmHost.h"

#include "Device/Limits.h"
#include "Device/document/JsonDocument.h"

namespace Device
{
namespace
{

const Verdict kNoNumber{&Outcome::kBadParameters, "this is not a number"};

}  // namespace

Response AlarmHost::Reply(const Call& call, const Verdict& verdict)
{
    Json::Value more;
    if (!verdict.message.empty()) {
        more["errorMsg"] = verdict.message;
    }
    return MakeJsonStatus(*verdict.outcome, call.request.target, more);
}

Verdict AlarmHost::Arm(AlarmHostState& state, int id, const Json::Value& entry)
{
    return state.Arm(id, JsonText(JsonMember(entry, "armType")));
}

Verdict AlarmHost::Disarm(AlarmHostState& state, int id, const Json::Value&)
{
    return state.Disarm(id);
}

Verdict AlarmHost::ClearAlarm(AlarmHostState& state, int id, const Json::Value&)
{
    return state.ClearAlarm(id);
}

Verdict AlarmHost::Bypass(AlarmHostState& state, int id, const Json::Value&)
{
    return state.Bypass(id, true);
}

Verdict AlarmHost::Recover(AlarmHostState& state, int id, const Json::Value&)
{
    return state.Bypass(id, false);
}

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

// Applies the command to as many items as it can; "ErrorList" contains the others.
Response AlarmHost::Batch(const Call& call, const std::vector<Json::Value>& entries,
                          const Command& command)
{
    if (entries.empty()) {
        return MakeStatus(Outcome::kBadJsonContent, call.request.target);
    }
    if (entries.size() > kMostBatch) {
        return Reply(call, {&Outcome::kBadParameters,
                            "a batch has at most " + std::to_string(kMostBatch) + " entries"});
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
    // Even a partial failure is not a refusal; the list has the details.
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
    return call.selectors.empty() ? Batch(call, JsonEntries(JsonMember(body, "List")), command)
                                  : Single(call, command);
}

// One selector is a detector of the host; two are a channel and one of its detectors.
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

}  // namespace Device
