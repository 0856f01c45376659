// capset ptz: presets, patrols, patterns and auto-tracking of a pan-tilt-zoom channel.
// SPDX-License-Identifier: Apache-2.0
#include <memory>
#include <optional>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ReportCommand.h"
#include "Tool/record/RecordNames.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

constexpr const char* kChannelOption = "--channel N";

struct TrackOptions
{
    int channel = 1;
    bool on = false;
    bool off = false;
};

void AddChannelOption(Command& command, int& channel)
{
    command.Option("--channel", channel, "N", "channel, {} by default").Group("Selectors");
}

template <class List>
void AddListCommand(Command& ptz, CommonOptions& common, const CommandText& text)
{
    const auto channel = std::make_shared<int>(1);
    Command& command =
        AddReportCommand(ptz, common, text, [channel, name = std::string(text.name)](Talk& talk) {
            talk.SetChannelOption(kChannelOption);
            const Reading reading =
                FindRecord(List::kRoot)
                    ->read(talk.Send("GET /TARN/PTZCtrl/channels/" +
                                     std::to_string(talk.ProtocolChannel(*channel)) + "/" + name));
            if (!reading.problem.empty()) {
                throw Failure("the device's document cannot be read as " +
                              std::string(List::kRoot) + ": " + reading.problem);
            }
            return Report{reading.values};
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
    talk.SetChannelOption(kChannelOption);
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
        report.remark = "The device accepted the setting but did not follow it.";
        report.code = kFailed;
    }
    return report;
}

}  // namespace

void AddPtzCommands(Command& program, CommonOptions& common)
{
    Command& ptz = program.Add("ptz", "Presets, patrols, patterns, auto-tracking");
    ptz.Example("capset ptz presets sim:dome");
    AddListCommand<CVelTarnPTZPresetList>(ptz, common,
                                          {"presets", "List the stored positions", "sim:dome"});
    AddListCommand<CVelTarnPTZPatrolList>(ptz, common,
                                          {"patrols", "List the tours of presets", "sim:dome"});
    AddListCommand<CVelTarnPTZPatternList>(ptz, common,
                                           {"patterns", "List the recorded movements", "sim:dome"});
    const auto options = std::make_shared<TrackOptions>();
    Command& track =
        AddReportCommand(ptz, common, {"track", "Read or switch auto-tracking", "sim:dome --on"},
                         [options](Talk& talk) { return Track(talk, *options); });
    AddChannelOption(track, options->channel);
    track.Flag("--on", options->on, "follow what moves");
    track.Flag("--off", options->off, "stay in place").Excludes("--on");
}

}  // namespace Tool
