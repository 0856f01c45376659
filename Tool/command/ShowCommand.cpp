// capset show and capset records: what a device can do.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>
#include <optional>

#include "PelNetSDK/Login.h"
#include "Tool/Failure.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ShowOutput.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/RecordNames.h"
#include "Tool/record/Secrets.h"
#include "Tool/record/Values.h"
#include "Tool/session/Inquiry.h"
#include "Tool/session/SdkFailure.h"
#include "Tool/terminal/Progress.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;

namespace
{

struct ShowOptions
{
    ConnectionOptions connection;
    std::vector<std::string> records;
    Selectors selectors;
    RecordOutput output;
    bool raw = false;
    bool explain = false;
    bool list = false;
};

constexpr const char* kSelectors = "Selectors";

/// Some devices answer with all parts, whichever was asked for.
void KeepPart(Finding& finding, const std::string& part)
{
    std::vector<std::string> names;
    for (const RecordNode& each : finding.reading.values.children) {
        if (!IsAttribute(each)) {
            names.push_back(each.name);
        }
    }
    if (std::ranges::count(finding.record->selectors, "part") == 0) {
        return;
    }
    const bool isThere = std::ranges::any_of(
        names, [&part](const std::string& name) { return SameIgnoringCase(name, part); });
    if (!isThere) {
        finding.outcome = Outcome::Failed;
        finding.failure = {NET_ORB_PARAMETER_ERROR,
                           "there is no part \"" + part + "\"; there are " + Joined(names),
                           {}};
        return;
    }
    for (RecordNode* tree : {&finding.reading.values, &finding.reading.shown}) {
        std::erase_if(tree->children, [&part](const RecordNode& each) {
            return !IsAttribute(each) && !SameIgnoringCase(each.name, part);
        });
    }
}

/// Asks for one record after another, shows each finding as it comes, and sums them up.
class Inquiries
{
public:
    Inquiries(const ShowOptions& options, const CommonOptions& common)
        : options_(options),
          records_(RecordsNamed(options.records)),
          paint_(common.PaintFor(stdout))
    {
    }

    int Run(const std::vector<std::string>& givenOptions)
    {
        if (!options_.records.empty()) {
            CheckOptions(records_, givenOptions);
        }
        if (options_.raw && records_.size() != 1) {
            throw Failure("--raw shows the document of one record: name it", kUsage);
        }
        const Session session(options_.connection);
        Progress progress("asking " + session.Device());
        for (const RecordEntry* record : records_) {
            progress.Say("for " + record->name + Place());
            findings_.push_back(Ask(*record, session));
            progress.Clear();
            const bool canPrint = Show(findings_.back(), session.Device());
            // The document and what was read from it may be large, and are not needed again.
            findings_.back().document = {};
            findings_.back().reading = {};
            if (!canPrint) {
                break;
            }
        }
        if (options_.output.json) {
            Print(Dump(options_.records.size() == 1 ? json_[0] : json_));
        } else if (options_.records.empty()) {
            Print("\n");
            Print(RenderSummary(findings_, session.Device(), paint_));
        }
        return Result();
    }

private:
    /// " (3 of 73)".
    [[nodiscard]] std::string Place() const
    {
        return records_.size() == 1 ? std::string()
                                    : " (" + std::to_string(findings_.size() + 1) + " of " +
                                          std::to_string(records_.size()) + ")";
    }

    Finding Ask(const RecordEntry& record, const Session& session)
    {
        if (unreachable_) {
            return {&record, Outcome::NotAsked, unreachable_->failure, {}, {}};
        }
        Finding finding = Inquire(record, session.UserID(), options_.selectors);
        if (finding.outcome == Outcome::Failed && MeansUnreachable(finding.failure.error)) {
            unreachable_ = finding;
        }
        if (finding.outcome == Outcome::Answered && options_.selectors.part) {
            KeepPart(finding, *options_.selectors.part);
        }
        if (!options_.output.showSecrets) {
            HideSecrets(finding.reading.values);
            HideSecrets(finding.reading.shown);
        }
        return finding;
    }

    /// False once nothing more can be printed.
    bool Show(const Finding& finding, const std::string& device)
    {
        const bool answered = finding.outcome == Outcome::Answered;
        const bool isNamed = !options_.records.empty();
        if (options_.output.json) {
            json_.append(ToJson(finding, device, options_.explain));
        }
        if (!answered && isNamed && !options_.output.json) {
            Complain(FailureSentence(finding, device));
        }
        if (options_.raw && !finding.document.empty()) {
            PrintDocument(finding.document);
        }
        if (options_.output.json || options_.raw || !answered) {
            return true;
        }
        const std::string between = printed_++ > 0 ? "\n\n" : "";
        return Print(between + RenderReading(finding.reading, device, options_.explain, paint_));
    }

    [[nodiscard]] int Result() const
    {
        const auto answered = [](const Finding& each) { return each.outcome == Outcome::Answered; };
        const bool good = options_.records.empty()
                              ? !unreachable_ && std::ranges::any_of(findings_, answered)
                              : std::ranges::all_of(findings_, answered);
        return good ? kAnswered : kFailed;
    }

    const ShowOptions& options_;
    const std::vector<const RecordEntry*> records_;
    const Paint paint_;
    std::vector<Finding> findings_;
    std::optional<Finding> unreachable_;
    Json::Value json_{Json::arrayValue};
    std::size_t printed_ = 0;
};

/// The names of the records that an option applies to.
std::string UsersOf(const std::string& option)
{
    std::vector<std::string> names;
    for (const RecordEntry& each : AllRecords()) {
        if (each.ask && std::ranges::count(OptionsOf(each), option) > 0) {
            names.push_back(each.name);
        }
    }
    return " (" + Listed(names) + ")";
}

void AddSelectors(Command& command, Selectors& selectors)
{
    const auto addNumber = [&](const std::string& name, std::optional<int>& value,
                               const std::string& what) {
        command.Option(name, value, "N", what + ", 1 by default" + UsersOf(name)).Group(kSelectors);
    };
    command
        .Option("--channel", selectors.channel, "N",
                "channel, 1 by default; -1: the device as a whole")
        .Group(kSelectors);
    command
        .Option("--channels", selectors.channels, "N,N...",
                "channels to ask for together" + UsersOf("--channels"))
        .SeparatedByCommas()
        .Group(kSelectors);
    addNumber("--audio-channel", selectors.audioChannel, "audio channel");
    addNumber("--talk-channel", selectors.talkChannel, "two-way audio channel");
    addNumber("--wall", selectors.wall, "video wall");
    addNumber("--output", selectors.output, "output of the video wall");
    command
        .Option("--part", selectors.part, "NAME",
                "one part, by its element's name" + UsersOf("--part"))
        .Group(kSelectors);
    command.Flag("--extended", selectors.extended, "the extended form" + UsersOf("--extended"))
        .Group(kSelectors);
}

/// The options that select something, as they were given.
std::vector<std::string> Given(const Selectors& selectors)
{
    std::vector<std::string> given;
    const auto add = [&given](bool isGiven, const char* option) {
        if (isGiven) {
            given.emplace_back(option);
        }
    };
    add(selectors.channel.has_value(), "--channel");
    add(selectors.channels.has_value(), "--channels");
    add(selectors.audioChannel.has_value(), "--audio-channel");
    add(selectors.talkChannel.has_value(), "--talk-channel");
    add(selectors.wall.has_value(), "--wall");
    add(selectors.output.has_value(), "--output");
    add(selectors.part.has_value(), "--part");
    add(selectors.extended, "--extended");
    return given;
}

int ListRecords(const CommonOptions& common, bool json)
{
    if (!json) {
        Print(RenderRecordList(common.PaintFor(stdout)));
        return kAnswered;
    }
    Json::Value list(Json::arrayValue);
    for (const RecordEntry& each : AllRecords()) {
        Json::Value item(Json::objectValue);
        item["record"] = each.name;
        item["description"] = each.description;
        item["asked"] = static_cast<bool>(each.ask);
        item["options"] = Json::Value(Json::arrayValue);
        for (const std::string& option : OptionsOf(each)) {
            item["options"].append(option);
        }
        list.append(std::move(item));
    }
    Print(Dump(list));
    return kAnswered;
}

void AddRecordsCommand(Command& program, CommonOptions& common)
{
    Command& command = program.Add("records", "List all records");
    command.Example("capset records");
    const auto json = std::make_shared<bool>(false);
    AddJsonFlag(command, *json);
    AddCommonOptions(command, common);
    command.SetAction([&common, json] { return ListRecords(common, *json); });
}

}  // namespace

void AddShowCommands(Command& program, CommonOptions& common)
{
    Command& command = program.Add("show", "Show what a device can do");
    command.Example("capset show sim:dome PTZAbility");
    command.Example("capset show sim:recorder PTZAbility --channel 2 --json");
    command.Example("capset show https://admin@192.0.2.7 --ca device.pem");
    const auto options = std::make_shared<ShowOptions>();
    AddConnectionOptions(command, options->connection);
    command.Positional("record", options->records,
                       "names of records, in upper or lower case; all records by default");
    AddSelectors(command, options->selectors);
    AddOutputOptions(command, options->output);
    command
        .Flag("--explain", options->explain,
              "list elements of the document that the record does not read, and why")
        .Group("Output");
    command.Flag("--raw", options->raw, "print the device's document as it came")
        .Group("Output")
        .Excludes("--json")
        .Excludes("--explain");
    command.Flag("--list", options->list, "list all records, like \"capset records\"")
        .Group("Output")
        .WaivesRequired();
    AddCommonOptions(command, common);
    command.SetAction([&common, options] {
        return options->list ? ListRecords(common, options->output.json)
                             : Inquiries(*options, common).Run(Given(options->selectors));
    });
    AddRecordsCommand(program, common);
}

}  // namespace Tool
