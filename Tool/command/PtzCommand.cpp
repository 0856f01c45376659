// capset ptz: what a pan-tilt-zoom channel has stored, and its auto-tracking.
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <optional>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "Tool/command/DeviceCommand.h"
#include "Tool/record/PtzLists.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

struct TrackOptions
{
    int channel = 1;
    bool on = false;
    bool off = false;
};

void AddChannelOption(CLI::App& command, int& channel)
{
    command.add_option("--channel", channel, "channel, 1 by default")
        ->type_name("N")
        ->group("Selectors");
}

template <class List>
void AddListCommand(CLI::App& ptz, CommandLine& line, const CommandText& text)
{
    const auto channel = std::make_shared<int>(1);
    CLI::App& command =
        AddDeviceCommand(ptz, line, text, [channel, name = std::string(text.name)](Talk& talk) {
            return Report{ReadPtzList<List>(
                List::kRoot,
                talk.Send("GET " + PtzListPath(talk.ProtocolChannel(*channel), name)))};
        });
    AddChannelOption(command, *channel);
}

bool ReadTracking(Talk& talk, int channel)
{
    CVelTarnPTZAutoTracking tracking;
    talk.Do([&](unsigned int& /*error*/) {
        return CVelTarnPTZAutoTracking::GetAutoTrackingState(talk.UserID(), channel, tracking);
    });
    return tracking.enabled;
}

Report Track(Talk& talk, const TrackOptions& options)
{
    const bool wanted = options.on;
    const bool isSetting = options.on || options.off;
    if (isSetting) {
        talk.Do([&](unsigned int& /*error*/) {
            return CVelTarnPTZAutoTracking::SetAutoTrackingState(talk.UserID(), options.channel,
                                                                 wanted);
        });
    }
    const bool enabled = ReadTracking(talk, options.channel);
    Report report{{"MoveAutoTracking",
                   RecordNode::Kind::Record,
                   {},
                   true,
                   {tree::Integer("channel", options.channel), tree::Flag("enabled", enabled)}}};
    if (isSetting && enabled != wanted) {
        report.remark = "The device accepted the setting and did not follow it.";
        report.code = kFailed;
    }
    return report;
}

}  // namespace

void AddPtzCommands(CLI::App& app, CommandLine& line)
{
    CLI::App& ptz = AddCommandGroup(app, "ptz", "Presets, patrols, patterns, auto-tracking",
                                    "ptz presets sim:dome");
    AddListCommand<CVelTarnPTZPresetList>(ptz, line,
                                          {"presets", "List the stored positions", "sim:dome"});
    AddListCommand<CVelTarnPTZPatrolList>(ptz, line,
                                          {"patrols", "List the tours of presets", "sim:dome"});
    AddListCommand<CVelTarnPTZPatternList>(ptz, line,
                                           {"patterns", "List the recorded movements", "sim:dome"});
    const auto options = std::make_shared<TrackOptions>();
    CLI::App& track =
        AddDeviceCommand(ptz, line, {"track", "Read or switch auto-tracking", "sim:dome --on"},
                         [options](Talk& talk) { return Track(talk, *options); });
    AddChannelOption(track, options->channel);
    CLI::Option* const on = track.add_flag("--on", options->on, "track what moves");
    track.add_flag("--off", options->off, "stay where it is")->excludes(on);
}

}  // namespace Tool
