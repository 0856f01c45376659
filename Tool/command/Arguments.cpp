// What the subcommands' command lines have in common.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/Arguments.h"

#include <map>

namespace Tool
{

CLI::App& AddCommand(CLI::App& parent, const std::string& name, const std::string& description,
                     const std::string& examples)
{
    CLI::App& command = *parent.add_subcommand(name, description);
    command.footer(examples);
    return command;
}

void AddCommonOptions(CLI::App& command, CommonOptions& options)
{
    static const std::map<std::string, ColourChoice> choices{{"auto", ColourChoice::Auto},
                                                             {"always", ColourChoice::Always},
                                                             {"never", ColourChoice::Never}};
    command
        .add_option_function<std::string>(
            "--color",
            [&options](const std::string& choice) { options.colour = choices.at(choice); },
            "colours: auto (on a terminal, unless NO_COLOR is set), always or never")
        ->check(CLI::IsMember(&choices).description(""))
        ->type_name("WHEN")
        ->group("Output");
    command
        .add_option("--log-level", options.logLevel,
                    "log of the library to stderr: debug, info or error")
        ->check(CLI::IsMember({"debug", "info", "error"}).description(""))
        ->type_name("LEVEL")
        ->group("Output");
}

void AddConnectionOptions(CLI::App& command, ConnectionOptions& options)
{
    command
        .add_option("device", options.device,
                    "sim:PROFILE, http://[USER@]HOST[:PORT] or https://[USER@]HOST[:PORT]")
        ->required()
        ->type_name("");
    const auto add = [&](const char* name, auto& value, const char* description, const char* type) {
        return command.add_option(name, value, description)->type_name(type)->group("Connection");
    };
    add("--user", options.user,
        "user name; the password comes from CAPSET_PASSWORD or a prompt, never from here", "NAME");
    add("--ca", options.ca, "PEM file of certificates to trust", "FILE")
        ->check(CLI::Validator(CLI::ExistingFile).description(""));
    command.add_flag("--insecure", options.insecure, "trust any certificate")->group("Connection");
    constexpr double kLongest = 86400;
    add("--timeout", options.timeout, "longest time for a whole answer, 15 by default", "SECONDS")
        ->check(CLI::Range(0.001, kLongest).description(""));
    add("--connect-timeout", options.connectTimeout,
        "longest time for reaching the device, 5 by default", "SECONDS")
        ->check(CLI::Range(0.001, kLongest).description(""));
}

void AddJsonFlag(CLI::App& command, bool& json)
{
    command.add_flag("--json", json, "JSON for programs (see docs/capset.md)")->group("Output");
}

}  // namespace Tool
