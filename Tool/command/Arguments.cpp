// Arguments that several commands share.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/Arguments.h"

namespace Tool
{

namespace
{

constexpr int kMostResults = 1'000'000;

ColourChoice ColourNamed(const std::string& name)
{
    return name == "always"  ? ColourChoice::Always
           : name == "never" ? ColourChoice::Never
                             : ColourChoice::Auto;
}

}  // namespace

void AddCommonOptions(Command& command, CommonOptions& options)
{
    command
        .Option(
            "--color",
            [&options](const std::string& name) {
                options.colour = ColourNamed(name);
                return std::string();
            },
            "WHEN", "colours: auto (on a terminal, unless NO_COLOR is set), always or never")
        .OneOf({"auto", "always", "never"})
        .Group("Output");
    command
        .Option("--log-level", options.logLevel, "LEVEL",
                "log to stderr: error (what fails), info (also every request, its answer and its "
                "time) or debug")
        .OneOf({"debug", "info", "error"})
        .Group("Output");
}

void AddConnectionOptions(Command& command, ConnectionOptions& options)
{
    constexpr const char* kGroup = "Connection";
    constexpr double kLongest = 86400;
    command
        .Positional("device", options.device,
                    "sim:PROFILE, http://[USER@]HOST[:PORT] or https://[USER@]HOST[:PORT]")
        .Required();
    command
        .Option("--user", options.user, "NAME",
                "user name; the password comes from CAPSET_PASSWORD or a prompt, never from the "
                "command line")
        .Group(kGroup);
    command.Option("--ca", options.ca, "FILE", "PEM file of certificates to trust")
        .ExistingFile()
        .Group(kGroup);
    command.Flag("--insecure", options.insecure, "trust any certificate").Group(kGroup);
    command
        .Option("--timeout", options.timeout, "TIME",
                "longest time for a whole answer, {} by default")
        .Between(0.001, kLongest)
        .Group(kGroup);
    command
        .Option("--connect-timeout", options.connectTimeout, "TIME",
                "longest time for reaching the device, {} by default")
        .Between(0.001, kLongest)
        .Group(kGroup);
}

void AddJsonFlag(Command& command, bool& json)
{
    command.Flag("--json", json, "JSON for programs").Group("Output");
}

void AddOutputOptions(Command& command, RecordOutput& output)
{
    AddJsonFlag(command, output.json);
    command.Flag("--show-secrets", output.showSecrets, "show passwords and keys in clear text")
        .Group("Output");
}

void AddPageOptions(Command& command, PageOptions& options)
{
    constexpr int kLargestPage = 100'000;
    command.Option("--max", options.pageSize, "N", "results to ask for at once, {} by default")
        .Between(1, kLargestPage)
        .Group("Search");
    AddLimitOption(command, options);
}

void AddLimitOption(Command& command, PageOptions& options)
{
    command
        .Option("--limit", options.limit, "N",
                "most results to fetch, " + std::to_string(PageOptions::kUsualLimit) +
                    " by default; 0: no limit")
        .Between(0, kMostResults)
        .Group("Search");
}

void AddTimeOptions(Command& command, TimeOptions& options)
{
    command
        .Option("--from", options.from, "TIME",
                "first day, or day and time: 2026-11-20, 2026-11-20T08:30:00")
        .Checked(CheckTime)
        .Group("Search");
    command.Option("--to", options.to, "TIME", "last day, or day and time")
        .Checked(CheckTime)
        .Group("Search");
}

void AddTaskOptions(Command& command, TaskOptions& options)
{
    command.Option("--task", options.task, "ID", "continue a task that was started before")
        .Group("Task");
    command
        .Option("--wait", options.wait, "TIME",
                "give up after this long without progress, {} by default; 0: start the task, "
                "print its ID and do not wait")
        .Between(0, 1e9)
        .Group("Task");
}

void AddDownloadOption(Command& command, std::string& file)
{
    command
        .Option("--download", file, "FILE",
                "save the results as the device packs them, instead of printing a table")
        .Group("Search");
}

}  // namespace Tool
