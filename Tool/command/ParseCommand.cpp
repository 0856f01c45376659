// capset parse: reads a saved document as a record, without a device.
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include "PelNetSDK/Login.h"
#include "Tool/Failure.h"
#include "Tool/command/Commands.h"
#include "Tool/command/ShowOutput.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/RecordNames.h"
#include "Tool/record/Secrets.h"
#include "Tool/session/Inquiry.h"

namespace Tool
{

namespace
{

struct ParseOptions
{
    std::string record;
    std::string file;
    RecordOutput output;
    bool explain = false;
};

int Parse(const ParseOptions& options, const CommonOptions& common)
{
    const RecordEntry& record = RecordNamed(options.record);
    Finding finding;
    finding.record = &record;
    finding.reading = record.read(ReadInput(options.file));
    const std::string source = options.file == "-" ? "standard input" : options.file;
    if (!options.output.showSecrets) {
        HideSecrets(finding.reading.values);
        HideSecrets(finding.reading.shown);
    }
    const std::string& problem = finding.reading.problem;
    finding.outcome = problem.empty() ? Outcome::Answered : Outcome::Failed;
    if (!problem.empty()) {
        finding.failure = {NET_ORB_NOSUPPORT, "cannot be read as " + record.name, problem};
    }
    if (options.output.json) {
        Print(Dump(ToJson(finding, source, options.explain)));
    } else if (problem.empty()) {
        Print(RenderReading(finding.reading, source, options.explain, common.PaintFor(stdout)));
    } else {
        Complain(source + " cannot be read as " + record.name + ": " + problem);
    }
    return problem.empty() ? kAnswered : kFailed;
}

}  // namespace

void AddParseCommand(Command& program, CommonOptions& common)
{
    Command& command = program.Add("parse", "Read a saved document as a record");
    command.Example("capset parse PTZAbility saved.xml --explain");
    command.Example("capset show sim:dome PTZAbility --raw | capset parse PTZAbility -");
    const auto options = std::make_shared<ParseOptions>();
    command.Positional("record", options->record, "name of the record").Required();
    command.Positional("file", options->file, "the saved document; - for the standard input")
        .Required();
    AddOutputOptions(command, options->output);
    command
        .Flag("--explain", options->explain,
              "list elements of the document that the record does not read, and why")
        .Group("Output");
    AddCommonOptions(command, common);
    command.SetAction([&common, options] { return Parse(*options, common); });
}

}  // namespace Tool
