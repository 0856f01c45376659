// capset show and capset records: what a device can do, as the library's records.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <memory>
#include <optional>

#include "Tool/command/Arguments.h"
#include "Tool/record/Document.h"
#include "Tool/record/Inquiry.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/RecordNames.h"
#include "Tool/record/ShowOutput.h"
#include "Tool/session/Failure.h"
#include "Tool/terminal/Progress.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

struct ShowOptions
{
    ConnectionOptions connection;
    std::vector<std::string> records;
    Selectors selectors;
    bool json = false;
    bool raw = false;
    bool explain = false;
};

/// Asks for one record after another, hands each finding over as it comes, and keeps what all of
/// them amount to.
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
        bool canPrint = true;
        for (const RecordEntry* record : records_) {
            findings_.push_back(Ask(*record, session));
            canPrint = Hand(findings_.back(), session.Device());
            // What was read is not needed any more, and there may be much of it.
            findings_.back().document = {};
            findings_.back().reading = {};
            if (!canPrint) {
                break;
            }
        }
        if (options_.json) {
            Print(Dump(options_.records.size() == 1 ? json_[0] : json_));
        } else if (options_.records.empty()) {
            Print("\n");
            Print(RenderSummary(findings_, session.Device(), paint_));
        }
        return Result();
    }

private:
    Finding Ask(const RecordEntry& record, const Session& session)
    {
        if (unreachable_) {
            return {&record, Outcome::NotAsked, unreachable_->failure, {}, {}};
        }
        std::string what = "asking " + session.Device() + " for " + record.name;
        if (records_.size() > 1) {
            what += " (" + std::to_string(findings_.size() + 1) + " of " +
                    std::to_string(records_.size()) + ")";
        }
        const Progress progress(what);
        Finding finding = Inquire(record, session.UserID(), options_.selectors);
        if (finding.outcome == Outcome::Failed && MeansUnreachable(finding.failure.error)) {
            unreachable_ = finding;
        }
        return finding;
    }

    /// False once nothing more can be printed.
    bool Hand(const Finding& finding, const std::string& device)
    {
        const bool answered = finding.outcome == Outcome::Answered;
        const bool isNamed = !options_.records.empty();
        if (options_.json) {
            json_.append(ToJson(finding, device, options_.explain));
        }
        if (!answered && isNamed && (!options_.json)) {
            Complain(FailureSentence(finding, device));
        }
        if (options_.raw && !finding.document.empty()) {
            PrintDocument(finding.document);
        }
        if (options_.json || options_.raw || !answered) {
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

/// The names of the records that are asked with an option.
std::string UsersOf(const std::string& option)
{
    std::vector<std::string> names;
    for (const RecordEntry& each : AllRecords()) {
        if (std::ranges::count(each.options, option) > 0) {
            names.push_back(each.name);
        }
    }
    return " (" + Listed(names) + ")";
}

void AddSelectors(CLI::App& command, Selectors& selectors)
{
    const auto add = [&command](const std::string& name, auto& value,
                                const std::string& description, const char* type) {
        return command.add_option(name, value, description)->type_name(type)->group("Selectors");
    };
    const auto addNumber = [&](const std::string& name, std::optional<int>& value,
                               const std::string& what) {
        add(name, value, what + ", 1 by default" + UsersOf(name), "N");
    };
    add("--channel", selectors.channel,
        "channel of records that tell of one, 1 by default; -1: the device as a whole", "N");
    add("--channels", selectors.channels, "channels asked for together" + UsersOf("--channels"),
        "N,N...")
        ->delimiter(',')
        ->expected(1)
        ->allow_extra_args(false);
    addNumber("--audio-channel", selectors.audioChannel, "audio channel");
    addNumber("--talk-channel", selectors.talkChannel, "two-way audio channel");
    addNumber("--wall", selectors.wall, "video wall");
    addNumber("--output", selectors.output, "output of the video wall");
    add("--part", selectors.part, "one part by its element's name" + UsersOf("--part"), "NAME");
    command.add_flag("--extended", selectors.extended, "the extended form" + UsersOf("--extended"))
        ->group("Selectors");
}

std::vector<std::string> GivenSelectors(const CLI::App& command)
{
    std::vector<std::string> given;
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_group() == "Selectors" && option->count() > 0) {
            given.push_back(option->get_name());
        }
    }
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
        item["options"] = Json::Value(Json::arrayValue);
        for (const std::string& option : each.options) {
            item["options"].append(option);
        }
        list.append(std::move(item));
    }
    Print(Dump(list));
    return kAnswered;
}

void AddRecordsCommand(CLI::App& app, CommandLine& line)
{
    CLI::App& command = AddCommand(app, "records", "List all records with one line each",
                                   "Example:\n  capset records");
    const auto json = std::make_shared<bool>(false);
    AddJsonFlag(command, *json);
    AddCommonOptions(command, line.common);
    command.callback(
        [&line, json] { line.chosen = [&line, json] { return ListRecords(line.common, *json); }; });
}

}  // namespace

void AddShowCommands(CLI::App& app, CommandLine& line)
{
    CLI::App& command =
        AddCommand(app, "show", "Show what a device can do",
                   "Examples:\n"
                   "  capset show sim:dome PTZAbility\n"
                   "  capset show sim:recorder PTZAbility --channel 2 --json\n"
                   "  CAPSET_PASSWORD=... capset show https://admin@192.0.2.7 --ca device.pem");
    const auto options = std::make_shared<ShowOptions>();
    AddConnectionOptions(command, options->connection);
    command
        .add_option("record", options->records,
                    "records by name, whatever the case; all of them when none is named")
        ->type_name("");
    AddSelectors(command, options->selectors);
    AddJsonFlag(command, options->json);
    CLI::Option* const json = command.get_option("--json");
    CLI::Option* const explain = command.add_flag(
        "--explain", options->explain, "what the document held beside the record, and why");
    explain->group("Output");
    command.add_flag("--raw", options->raw, "the device's document as it came")
        ->group("Output")
        ->excludes(json)
        ->excludes(explain);
    // A flag that, like --help, needs no device.
    command
        .add_flag_callback(
            "--list",
            [&line] {
                ListRecords(line.common, false);
                throw CLI::Success();
            },
            "list all records (the same as \"capset records\")")
        ->group("Output")
        ->trigger_on_parse();
    AddCommonOptions(command, line.common);
    command.callback([&command, &line, options] {
        const std::vector<std::string> given = GivenSelectors(command);
        line.chosen = [&line, options, given] {
            return Inquiries(*options, line.common).Run(given);
        };
    });
    AddRecordsCommand(app, line);
}

}  // namespace Tool
