// capset switch: state and settings of managed switches.
// SPDX-License-Identifier: Apache-2.0
#include <array>
#include <charconv>
#include <cstdio>
#include <map>
#include <memory>

#include "CapabilitySet/XMLParamInterface/ParamInterface.h"
#include "Tool/command/Assignment.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ReportCommand.h"
#include "Tool/session/Paging.h"

namespace Tool
{

using namespace CapabilitySet;
using ParseXmlHelper::InterfaceRet;

namespace
{

template <class Record>
using Getter = InterfaceRet (*)(Record&, int);
template <class Record>
using Setter = InterfaceRet (*)(const Record&, int);

template <class Record>
Record Read(Talk& talk, Getter<Record> get)
{
    Record record;
    talk.Do([&](unsigned int& /*error*/) { return get(record, talk.UserID()); });
    return record;
}

template <class Record>
void AddReadCommand(Command& group, CommonOptions& common, const CommandText& text,
                    Getter<Record> get)
{
    AddReportCommand(group, common, text, [get](Talk& talk) {
        return Report{Describe(Record::kElement, Read(talk, get))};
    });
}

/// Reads a setting, changes it, sends it back and reads it again.
template <class Record>
Report Change(Talk& talk, Getter<Record> get, Setter<Record> set,
              const std::vector<Assignment>& assignments)
{
    Record record = Read(talk, get);
    for (const Assignment& each : assignments) {
        Assign(record, each);
    }
    talk.Say("sending");
    talk.Do([&](unsigned int& /*error*/) { return set(record, talk.UserID()); });
    const Record kept = Read(talk, get);
    Report report{Describe(Record::kElement, kept)};
    // Measured values may have changed meanwhile; only those that were set are compared.
    Record again = kept;
    for (const Assignment& each : assignments) {
        Assign(again, each);
    }
    if (!SameFields(again, kept)) {
        report.remark = "The device accepted the setting but reports other values.";
        report.code = kFailed;
    }
    return report;
}

using Changer = std::function<Report(Talk&, const std::vector<Assignment>&)>;

template <class Record>
Changer ChangerOf(Getter<Record> get, Setter<Record> set)
{
    return [get, set](Talk& talk, const std::vector<Assignment>& assignments) {
        return Change(talk, get, set, assignments);
    };
}

const std::map<std::string, Changer>& Changers()
{
    static const std::map<std::string, Changer> all{
        {"info",
         ChangerOf(&ParamInterface::GetSwitchesBasicInfo, &ParamInterface::SetSwitchesBasicInfo)},
        {"rates", ChangerOf(&ParamInterface::GetPortRates, &ParamInterface::SetPortRates)},
        {"wireless", ChangerOf(&ParamInterface::GetWireless, &ParamInterface::SetWireless)},
        {"region", ChangerOf(&ParamInterface::GetBridgeRegion, &ParamInterface::SetBridgeRegion)},
        {"discovery",
         ChangerOf(&ParamInterface::GetDiscoveryMode, &ParamInterface::SetDiscoveryMode)},
    };
    return all;
}

std::vector<std::string> Names(const std::map<std::string, Changer>& changers)
{
    std::vector<std::string> names;
    for (const auto& [name, changer] : changers) {
        names.push_back(name);
    }
    return names;
}

void AddSetCommand(Command& group, CommonOptions& common)
{
    struct SetOptions
    {
        std::string setting;
        std::vector<std::string> assignments;
    };
    const auto options = std::make_shared<SetOptions>();
    Command& command =
        AddReportCommand(group, common,
                         {"set", "Change a setting: read, change, send, and read it back",
                          "sim:switch rates 3.uplinkRate=10240"},
                         [options](Talk& talk) {
                             std::vector<Assignment> assignments;
                             for (const std::string& each : options->assignments) {
                                 assignments.push_back(ReadAssignment(each));
                             }
                             return Changers().at(options->setting)(talk, assignments);
                         });
    command.Positional("setting", options->setting, "info, rates, wireless, region or discovery")
        .OneOf(Names(Changers()))
        .Required();
    command
        .Positional("assignment", options->assignments,
                    "NAME=VALUE, with names as the reading command shows them; NAME.NAME for a "
                    "nested member, ID.NAME for an item of a list")
        .Required();
}

/// Rounds byte counters ("2.6 TB"), so that a port fits in one row.
void RoundBytes(RecordNode& row)
{
    for (RecordNode& member : row.children) {
        double bytes = 0;
        const char* const end = member.text.data() + member.text.size();
        if (member.name.ends_with("Bytes") &&
            std::from_chars(member.text.data(), end, bytes).ptr == end && bytes >= 1000) {
            constexpr std::array kUnits{"kB", "MB", "GB", "TB", "PB", "EB"};
            std::size_t unit = 0;
            for (bytes /= 1000; bytes >= 1000 && unit + 1 < kUnits.size(); ++unit) {
                bytes /= 1000;
            }
            std::array<char, 32> text{};
            std::snprintf(text.data(), text.size(), "%.1f %s", bytes, kUnits[unit]);
            member = tree::Text(member.name, text.data());
        }
    }
}

Report ReadWorkStates(Talk& talk, const PageOptions& options)
{
    Report report = FetchPages(talk, options, "WorkState", [&talk](const PageRequest& request) {
        SwitchesWorkStateSearchCond condition;
        condition.searchID = request.searchID;
        condition.maxMatchResults = request.count;
        condition.searchResultsPosition = request.position;
        SwitchesWorkStateSearchResult result;
        talk.Do([&](unsigned int& /*error*/) {
            return ParamInterface::SearchSwitchesWorkState(condition, result, talk.UserID());
        });
        return ReadPage(Describe("WorkState", result));
    });
    for (RecordNode& list : report.shown->children) {
        for (RecordNode& row : list.children) {
            RoundBytes(row);
        }
    }
    return report;
}

}  // namespace

void AddSwitchCommands(Command& program, CommonOptions& common)
{
    Command& group = program.Add("switch", "Managed switches: ports, rates, wireless");
    group.Example("capset switch ports sim:switch");
    AddReadCommand(group, common, {"info", "Show what the switch is", "sim:switch"},
                   &ParamInterface::GetSwitchesBasicInfo);
    AddReadCommand(group, common, {"ports", "List the ports", "sim:switch"},
                   &ParamInterface::GetPortInfo);
    AddReadCommand(group, common, {"rates", "List the ports' rate limits", "sim:switch"},
                   &ParamInterface::GetPortRates);
    const auto options = std::make_shared<PageOptions>();
    AddPageOptions(
        AddReportCommand(group, common, {"state", "List what the switches are doing", "sim:switch"},
                         [options](Talk& talk) { return ReadWorkStates(talk, *options); }),
        *options);
    AddReadCommand(group, common,
                   {"wireless", "Show the settings of the wireless link", "sim:switch"},
                   &ParamInterface::GetWireless);
    AddReadCommand(group, common,
                   {"region", "Show the region of the wireless bridge", "sim:switch"},
                   &ParamInterface::GetBridgeRegion);
    AddReadCommand(group, common,
                   {"discovery", "Show how the switch can be discovered", "sim:switch"},
                   &ParamInterface::GetDiscoveryMode);
    AddReadCommand(group, common, {"apps", "List the applications", "sim:switch"},
                   &ParamInterface::GetApps);
    AddReadCommand(group, common, {"status", "Show time, temperatures and fans", "sim:switch"},
                   &ParamInterface::GetDeviceStatus);
    AddSetCommand(group, common);
}

}  // namespace Tool
