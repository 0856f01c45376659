// capset alarm: the state of an alarm host, and commands to it.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Tool/command/AlarmItems.h"
#include "Tool/command/AlarmLists.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ReportCommand.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/session/Paging.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

using Part = std::function<RecordNode(Talk&, const char* name)>;

/// A part that an operation of the library reads.
template <class Record>
Part Read(bool (*get)(Record&, unsigned int&, const int))
{
    return [get](Talk& talk, const char* name) {
        Record record;
        talk.Do([&](unsigned int& error) { return get(record, error, talk.UserID()); });
        return DescribeWhole(name, record);
    };
}

/// A part that the library parses but does not ask for.
template <class Record>
Part Fetch(const char* path)
{
    return [path](Talk& talk, const char* name) {
        return DescribeWhole(name, Record(talk.Send(std::string("GET ") + path + "?format=json")));
    };
}

struct NamedPart
{
    const char* name;
    Part read;
};

const std::vector<NamedPart>& StatusParts()
{
    static const std::vector<NamedPart> all{
        {"communication", Read(&JsonConfigApp::GetAlarmHostCommuniStatus)},
        {"subsystems", Fetch<AlarmHostSubSystemsInfo>("/TARN/SecurityCP/status/subSystems")},
        {"zones", Fetch<AlarmHostZonesInfo>("/TARN/SecurityCP/status/zones")},
        {"outputs", Fetch<AlarmHostOutputsModulesInfo>("/TARN/SecurityCP/status/outputs")},
        {"sirens", Fetch<AlarmHostSirensInfo>("/TARN/SecurityCP/status/sirens")},
        {"detectors", ReadDetectors},
    };
    return all;
}

const std::vector<NamedPart>& ConfigurationParts()
{
    static const std::vector<NamedPart> all{
        {"subsystems", Read(&JsonConfigApp::GetSubSystemConfig)},
        {"zones", Read(&JsonConfigApp::GetAlarmHostZoneConfiguration)},
        {"outputs", Read(&JsonConfigApp::GetTriggerConfig)},
    };
    return all;
}

void AddPartsCommand(Command& group, CommonOptions& common, const CommandText& text,
                     const std::string& title, const std::vector<NamedPart>& parts)
{
    const auto wanted = std::make_shared<std::vector<std::string>>();
    Command& command = AddReportCommand(group, common, text, [&parts, wanted, title](Talk& talk) {
        Report report{{title, RecordNode::Kind::Record, {}, true, {}}};
        report.shown = report.values;
        for (const NamedPart& part : parts) {
            if (wanted->empty() || std::ranges::count(*wanted, part.name) > 0) {
                talk.Say(part.name);
                report.values.children.push_back(part.read(talk, part.name));
                report.shown->children.push_back(HostRows(report.values.children.back()));
            }
        }
        return report;
    });
    std::vector<std::string> names;
    for (const NamedPart& part : parts) {
        names.emplace_back(part.name);
    }
    command.Positional("part", *wanted, "all by default, or some of " + Joined(names)).OneOf(names);
}

struct LogOptions
{
    TimeOptions time;
    PageOptions page;
};

void AddLogCommand(Command& group, CommonOptions& common)
{
    const auto options = std::make_shared<LogOptions>();
    Command& command = AddReportCommand(
        group, common, {"log", "Read the log", "sim:alarmhost --limit 20"}, [options](Talk& talk) {
            AlarmHostLogConditionDescription condition;
            condition.startTime = StartTime(options->time, "");
            condition.endTime = EndTime(options->time, "");
            return FetchPages(talk, options->page, "Log", [&](const PageRequest& request) {
                condition.searchID = request.searchID;
                condition.searchResultPosition = request.position;
                condition.maxResults = request.count;
                AlarmHostDeviceLogResult result;
                talk.Do([&](unsigned int& error) {
                    return JsonConfigApp::GetAlarmHostDeviceLog(condition, result, error,
                                                                talk.UserID());
                });
                return ReadPage(DescribeWhole("Log", result));
            });
        });
    AddTimeOptions(command, options->time);
    AddPageOptions(command, options->page);
}

/// Stands for all items in the request's body.
constexpr int kBatch = -1;

struct ItemOptions
{
    std::vector<int> ids;
    std::string way;
    bool on = false;
    bool off = false;
    int sensor = -1;
    std::string command;
};
using Options = std::shared_ptr<ItemOptions>;

void AddItems(Command& command, ItemOptions& options, const std::string& noun)
{
    command
        .Option("--" + noun, options.ids, "N,...", "number of the " + noun + ", or several: 1,2,5")
        .SeparatedByCommas()
        .Required()
        .Group("Command");
}

/// Commands to subsystems: `one` is the operation for a single one, `verb` is part of the batch's
/// path.
template <class One>
Command& AddSubSystemCommand(Command& group, CommonOptions& common, const CommandText& text,
                             const std::string& verb, const Options& options, One one)
{
    const std::string path = "/TARN/SecurityCP/control/" + verb;
    Command& command = AddReportCommand(group, common, text, [options, one, path](Talk& talk) {
        OperateSubSystemsInfo info;
        for (const int id : options->ids) {
            info.subSystems.emplace_back().id = id;
            info.subSystems.back().armType = options->way;
        }
        return CommandItems(
            talk, "subsystem", options->ids,
            [&](int id) {
                JsonStatus status;
                talk.Do([&](unsigned int& error) { return one(status, id, error, talk.UserID()); });
            },
            [&] {
                talk.Send("POST " + path + "?format=json",
                          options->way.empty() ? info.CreatDisarmAndClearAlarmJsonParser(info)
                                               : info.CreatArmJsonParser(info));
            });
    });
    AddItems(command, *options, "subsystem");
    return command;
}

void AddSubSystemCommands(Command& group, CommonOptions& common)
{
    const auto arming = std::make_shared<ItemOptions>();
    Command& arm = AddSubSystemCommand(
        group, common, {"arm", "Arm subsystems", "sim:alarmhost --subsystem 1 --way away"}, "arm",
        arming, [arming](JsonStatus& status, int id, unsigned int& error, int userID) {
            return JsonConfigApp::SetDevArming(status, arming->way, id, error, userID);
        });
    arm.Option("--way", arming->way, "WAY",
               "away, stay, or another way that AlarmHostOperateCapability lists")
        .Required()
        .Group("Command");
    AddSubSystemCommand(group, common,
                        {"disarm", "Disarm subsystems", "sim:alarmhost --subsystem 1,2"}, "disarm",
                        std::make_shared<ItemOptions>(), &JsonConfigApp::SetDevDisArm);
    AddSubSystemCommand(
        group, common, {"clear", "Clear subsystems' alarms", "sim:alarmhost --subsystem 1"},
        "clearAlarm", std::make_shared<ItemOptions>(), &JsonConfigApp::SetDevClearAlarm);
}

using ZoneOperation = bool (*)(const AlarmHostBypassCfg&, JsonStatus&, unsigned int&, const int,
                               const int);

void AddZoneCommand(Command& group, CommonOptions& common, const CommandText& text,
                    ZoneOperation operation)
{
    const auto options = std::make_shared<ItemOptions>();
    Command& command = AddReportCommand(group, common, text, [options, operation](Talk& talk) {
        const auto send = [&](int zone) {
            AlarmHostBypassCfg cfg;
            cfg.zone = JoinedNumbers(options->ids);
            JsonStatus status;
            talk.Do([&](unsigned int& error) {
                return operation(cfg, status, error, zone, talk.UserID());
            });
        };
        return CommandItems(talk, "zone", options->ids, send, [&] { send(kBatch); });
    });
    AddItems(command, *options, "zone");
}

/// Switches one item, or with kBatch all items of the options.
using SwitchSender = std::function<void(Talk& talk, const ItemOptions& options, int id)>;

void AddSwitchCommand(Command& group, CommonOptions& common, const CommandText& text,
                      const SwitchSender& sender)
{
    const auto options = std::make_shared<ItemOptions>();
    const std::string noun = text.name;
    Command& command = AddReportCommand(group, common, text, [options, noun, sender](Talk& talk) {
        if (options->on == options->off) {
            throw Failure("--on or --off is missing", kUsage);
        }
        const auto send = [&](int id) { sender(talk, *options, id); };
        return CommandItems(talk, noun, options->ids, send, [&] { send(kBatch); });
    });
    AddItems(command, *options, noun);
    command.Flag("--on", options->on, "switch on").Group("Command");
    command.Flag("--off", options->off, "switch off").Group("Command").Excludes("--on");
}

const char* PositionOf(const ItemOptions& options)
{
    return options.on ? "open" : "close";
}

void SwitchOutput(Talk& talk, const ItemOptions& options, int id)
{
    AlarmHostOutputCfg cfg;
    cfg.switchState = PositionOf(options);
    cfg.ids = options.ids;
    JsonErrorStatusList errors;
    talk.Do([&](unsigned int& error) {
        return JsonConfigApp::SetOutputControl(cfg, error, errors, id, talk.UserID());
    });
}

/// The library has no operation for sirens.
void SwitchSiren(Talk& talk, const ItemOptions& options, int id)
{
    Json::Value body;
    body["SirensCtrl"]["switch"] = PositionOf(options);
    for (const int each : options.ids) {
        body["SirensCtrl"]["List"].append(Json::Value())["id"] = each;
    }
    const std::string path = "/TARN/SecurityCP/control/sirens";
    talk.Send(id == kBatch ? "POST " + path + "?format=json"
                           : "PUT " + path + "/" + std::to_string(id) + "?format=json",
              Dump(body));
}

void AddDetectorCommand(Command& group, CommonOptions& common)
{
    const auto options = std::make_shared<ItemOptions>();
    options->command = "silence";
    Command& command = AddReportCommand(
        group, common, {"silence", "Silence fire detectors", "sim:alarmhost --detector 1"},
        [options](Talk& talk) {
            DetectorSilence silence;
            silence.cmd = options->command;
            const auto send = [&](int detector) {
                JsonStatus status;
                talk.Do([&](unsigned int& error) {
                    return JsonConfigApp::SetDetectorSilence(status, silence, error, detector,
                                                             options->sensor, talk.UserID());
                });
                talk.CheckStatus();
            };
            // The protocol has no request for several detectors.
            return CommandItems(talk, "detector", options->ids, send, {});
        });
    AddItems(command, *options, "detector");
    command
        .Option("--sensor", options->sensor, "N",
                "one detector of a channel; all of them by default")
        .Group("Command");
    command
        .Option("--command", options->command, "WORD",
                "silence by default, or another command that DetectorSilenceCap lists")
        .Group("Command");
}

}  // namespace

void AddAlarmCommands(Command& program, CommonOptions& common)
{
    Command& group = program.Add("alarm", "Alarm hosts: state, arming, zones, outputs");
    group.Example("capset alarm arm sim:alarmhost --subsystem 1 --way away");
    AddPartsCommand(group, common, {"status", "Show what the host is doing", "sim:alarmhost zones"},
                    "AlarmHostStatus", StatusParts());
    AddPartsCommand(group, common,
                    {"config", "Show how the host is set up", "sim:alarmhost outputs"},
                    "AlarmHostConfiguration", ConfigurationParts());
    AddReportCommand(group, common,
                     {"zones", "List the zones with their setup and state", "sim:alarmhost"},
                     ListZones);
    AddReportCommand(group, common, {"detectors", "List the fire detectors", "sim:alarmhost"},
                     ListDetectors);
    AddLogCommand(group, common);
    AddSubSystemCommands(group, common);
    AddZoneCommand(group, common, {"bypass", "Bypass zones", "sim:alarmhost --zone 3"},
                   &JsonConfigApp::SetDevBypass);
    AddZoneCommand(group, common, {"recover", "End the bypass of zones", "sim:alarmhost --zone 3"},
                   &JsonConfigApp::SetDevBypassRecover);
    AddSwitchCommand(group, common, {"output", "Switch outputs", "sim:alarmhost --output 1,2 --on"},
                     SwitchOutput);
    AddSwitchCommand(group, common, {"siren", "Switch sirens", "sim:alarmhost --siren 4 --off"},
                     SwitchSiren);
    AddDetectorCommand(group, common);
}

}  // namespace Tool
