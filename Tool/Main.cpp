// capset: asks a video-security device what it can do, and shows the answer.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <csignal>
#include <exception>
#include <new>
#include <sstream>
#include <string>
#include <vector>

#include "Tool/command/Arguments.h"
#include "Tool/session/Failure.h"
#include "Tool/terminal/Log.h"
#include "Tool/terminal/Text.h"

namespace
{

using namespace Tool;

void Describe(CLI::App& app, CommandLine& line)
{
    app.footer(
        "Exit codes: 0 the device answered, 1 it refused or failed, 2 the command line makes no "
        "sense.\n\nExample:\n  capset show sim:dome BasicCapability");
    app.set_version_flag("--version", "capset " CAPSET_VERSION, "the version");
    app.require_subcommand(1);
    app.get_formatter()->column_width(34);
    AddShowCommands(app, line);
    AddCallCommand(app, line);
    AddParseCommand(app, line);
    AddPtzCommands(app, line);
    AddSwitchCommands(app, line);
    AddSearchCommands(app, line);
    AddAlarmCommands(app, line);
    AddDeviceCommands(app, line);
    AddMacCommand(app, line);
    app.set_help_all_flag("--help-all", "the help of all subcommands");
}

/// The exit code of a command line that ends here, in help or in a mistake.
int EndAtCommandLine(const CLI::App& app, const CLI::ParseError& error, const std::string& first)
{
    if (error.get_exit_code() == 0) {
        std::ostringstream text;
        app.exit(error, text, text);
        const std::string help = text.str();
        Print(help + (help.empty() || help.ends_with('\n') ? "" : "\n"));
        return kAnswered;
    }
    std::vector<std::string> names;
    for (const CLI::App* each : app.get_subcommands({})) {
        names.push_back(each->get_name());
    }
    const bool isUnknown =
        !first.empty() && !first.starts_with('-') && std::ranges::find(names, first) == names.end();
    const std::string nearest = isUnknown ? NearestName(first, names) : std::string();
    if (!nearest.empty()) {
        Complain("there is no subcommand \"" + first + "\"; did you mean " + nearest + "?");
    } else {
        Complain(std::string(error.what()) + "; \"capset --help\" tells more");
    }
    return kUsage;
}

int Run(int argc, char** argv)
{
    CLI::App app("Asks a video-security device what it can do, and shows the answer.", "capset");
    CommandLine line;
    Describe(app, line);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return EndAtCommandLine(app, error, argc > 1 ? argv[1] : "");
    }
    if (!line.common.logLevel.empty()) {
        LogToStderr(line.common.logLevel);
    }
    return line.chosen();
}

int RunGuarded(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const Failure& failure) {
        Complain(failure.what());
        return failure.Code();
    } catch (const std::bad_alloc&) {
        Complain("there is not enough memory");
    } catch (const std::exception& error) {
        Complain(error.what());
    }
    return kFailed;
}

}  // namespace

int main(int argc, char** argv)
{
    // A reader that goes away ends the output, not the program in the middle of something.
    std::signal(SIGPIPE, SIG_IGN);
    UseUtf8Widths();
    const int result = RunGuarded(argc, argv);
    return FinishOutput() ? result : kFailed;
}
