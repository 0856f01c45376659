// capset parse: reads a saved document as a record, without a device.
// SPDX-License-Identifier: Apache-2.0
#include <memory>

#include "PelNetSDK/Login.h"
#include "Tool/command/Arguments.h"
#include "Tool/record/Document.h"
#include "Tool/record/Inquiry.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/RecordNames.h"
#include "Tool/record/ShowOutput.h"
#include "Tool/session/Failure.h"

namespace Tool
{

namespace
{

struct ParseOptions
{
    std::string record;
    std::string file;
    bool json = false;
    bool explain = false;
};

int Parse(const ParseOptions& options, const CommonOptions& common)
{
    const RecordEntry& record = RecordNamed(options.record);
    Finding finding;
    finding.record = &record;
    finding.reading = record.read(ReadInput(options.file));
    const std::string source = options.file == "-" ? "standard input" : options.file;
    const std::string& problem = finding.reading.problem;
    finding.outcome = problem.empty() ? Outcome::Answered : Outcome::Failed;
    if (!problem.empty()) {
        finding.failure = {NET_ORB_NOSUPPORT, "cannot be read as " + record.name, problem};
    }
    if (options.json) {
        Print(Dump(ToJson(finding, source, options.explain)));
    } else if (problem.empty()) {
        Print(RenderReading(finding.reading, source, options.explain, common.PaintFor(stdout)));
    } else {
        Complain(source + " cannot be read as " + record.name + ": " + problem);
    }
    return problem.empty() ? kAnswered : kFailed;
}

}  // namespace

void AddParseCommand(CLI::App& app, CommandLine& line)
{
    CLI::App& command = AddCommand(app, "parse", "Read a saved document as a record",
                                   "Examples:\n"
                                   "  capset parse PTZAbility saved.xml --explain\n"
                                   "  capset show sim:dome PTZAbility --raw | "
                                   "capset parse PTZAbility -");
    const auto options = std::make_shared<ParseOptions>();
    command.add_option("record", options->record, "name of the record")->required()->type_name("");
    command.add_option("file", options->file, "file of the document, - for the standard input")
        ->required()
        ->type_name("");
    AddJsonFlag(command, options->json);
    command
        .add_flag("--explain", options->explain,
                  "what the document held beside the record, and why")
        ->group("Output");
    AddCommonOptions(command, line.common);
    command.callback([&line, options] {
        line.chosen = [&line, options] { return Parse(*options, line.common); };
    });
}

}  // namespace Tool
