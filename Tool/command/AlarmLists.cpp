// Lists of an alarm host as tables.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/AlarmLists.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Tool/record/Rows.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

/// Replaces the flags of a row with one text that lists those that are set: "armed, open".
RecordNode WithState(RecordNode row)
{
    const auto isFlag = [](const RecordNode& each) { return each.kind == RecordNode::Kind::Flag; };
    if (std::ranges::count_if(row.children, isFlag) < 2) {
        return row;
    }
    RecordNode state = tree::Text("state", {});
    for (const RecordNode& each : row.children) {
        if (isFlag(each) && each.text == "true") {
            state.text += (state.text.empty() ? "" : ", ") + each.name;
        }
    }
    state.announced = !state.text.empty();
    std::erase_if(row.children, isFlag);
    row.children.push_back(std::move(state));
    return row;
}

const RecordNode* FindMember(const RecordNode& record, const char* name)
{
    const auto found = std::ranges::find(record.children, name, &RecordNode::name);
    return found == record.children.end() ? nullptr : &*found;
}

const std::string& TextOf(const RecordNode& record, const char* name)
{
    static const std::string none;
    const RecordNode* const member = FindMember(record, name);
    return member == nullptr ? none : member->text;
}

bool IsSensor(const RecordNode& member)
{
    return member.kind == RecordNode::Kind::Record && FindMember(member, "status") != nullptr;
}

/// What is wrong with a detector: "Smoke abnormal, silenced".
RecordNode DetectorState(const RecordNode& detector)
{
    RecordNode state = tree::Text("state", {});
    const auto add = [&state](const std::string& text) {
        state.text += (state.text.empty() ? "" : ", ") + text;
    };
    for (const RecordNode& each : detector.children) {
        if (IsSensor(each) && TextOf(each, "status") != "normal") {
            add(each.name + " " + TextOf(each, "status"));
        }
    }
    if (state.text.empty() && TextOf(detector, "status") != "normal") {
        add(TextOf(detector, "status"));
    }
    if (TextOf(detector, "silenced") == "true") {
        add("silenced");
    }
    state.announced = !state.text.empty();
    return state;
}

/// A detector with its sensors as one row; anything else unchanged. It may be nested in an object.
RecordNode WithSensors(RecordNode item)
{
    if (item.children.size() == 1 && item.children.front().kind == RecordNode::Kind::Record) {
        item.children.front() = WithSensors(std::move(item.children.front()));
        return item;
    }
    if (std::ranges::none_of(item.children, IsSensor)) {
        return item;
    }
    RecordNode state = DetectorState(item);
    const std::string place = TextOf(item, "channelID") + "/" + TextOf(item, "channelDetectorID");
    std::erase_if(item.children, [](const RecordNode& each) {
        return IsSensor(each) || each.name == "status" || each.name == "silenced" ||
               each.name.starts_with("channel");
    });
    if (place != "/") {
        item.children.push_back(tree::Text("channel", place));
    }
    item.children.push_back(std::move(state));
    return item;
}

/// The rows of a list by their ids.
std::map<std::string, RecordNode> ById(const RecordNode& part)
{
    std::map<std::string, RecordNode> rows;
    for (const RecordNode& member : part.children) {
        for (const RecordNode& item : member.children) {
            RecordNode row = Flattened(item);
            if (const RecordNode* const id = FindMember(row, "id")) {
                rows.emplace(id->text, std::move(row));
            }
        }
    }
    return rows;
}

/// A zone for people, who only care if it is disabled.
RecordNode ZoneRow(RecordNode row)
{
    for (RecordNode& member : row.children) {
        if (member.name == "enable") {
            member = tree::Flag("disabled", member.text != "true");
        }
    }
    return WithState(std::move(row));
}

}  // namespace

RecordNode HostRows(const RecordNode& part)
{
    RecordNode rows = part;
    rows.children.clear();
    for (const RecordNode& member : part.children) {
        if (member.kind == RecordNode::Kind::List) {
            rows.kind = RecordNode::Kind::List;
            rows.children.clear();
            std::ranges::transform(
                member.children, std::back_inserter(rows.children),
                [](const RecordNode& item) { return WithState(Flattened(WithSensors(item))); });
            return rows;
        }
        rows.children.push_back(member);
    }
    return rows;
}

RecordNode ReadDetectors(Talk& talk, const char* name)
{
    DetectorStates states;
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::GetDetectorStates(states, error, talk.UserID());
    });
    return tree::Node(name, states.root);
}

Report ListDetectors(Talk& talk)
{
    const RecordNode list = ReadDetectors(talk, "detectors");
    Report report{{"Detectors", RecordNode::Kind::Record, {}, true, {list}}};
    report.values.children.front() = list.children.empty() ? list : list.children.front();
    report.values.children.front().name = "detectors";
    report.shown = report.values;
    report.shown->children.front() = HostRows(list);
    return report;
}

Report ListZones(Talk& talk)
{
    AlarmHostZoneConfig config;
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::GetAlarmHostZoneConfiguration(config, error, talk.UserID());
    });
    const AlarmHostZonesInfo info(talk.Send("GET /TARN/SecurityCP/status/zones?format=json"));
    std::map<std::string, RecordNode> states = ById(DescribeWhole("zones", info));
    RecordNode zones{"zones", RecordNode::Kind::List, {}, true, {}};
    for (const AlarmHostZone& zone : config.zones) {
        RecordNode row = Describe("Zone", zone);
        const auto state = states.find(std::to_string(zone.id));
        if (state != states.end()) {
            for (RecordNode& member : state->second.children) {
                if (FindMember(row, member.name.c_str()) == nullptr) {
                    row.children.push_back(std::move(member));
                }
            }
            states.erase(state);
        }
        zones.children.push_back(std::move(row));
    }
    Report report{{"Zones", RecordNode::Kind::Record, {}, true, {zones}}};
    report.shown = report.values;
    for (RecordNode& row : report.shown->children.front().children) {
        row = ZoneRow(std::move(row));
    }
    return report;
}

}  // namespace Tool
