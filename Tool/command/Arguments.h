// What the subcommands' command lines have in common.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "Tool/session/Connection.h"
#include "Tool/terminal/Terminal.h"

namespace Tool
{

/// What any subcommand may be told.
struct CommonOptions
{
    ColourChoice colour = ColourChoice::Auto;
    std::string logLevel;

    [[nodiscard]] Paint PaintFor(std::FILE* stream) const
    {
        return Paint(WantsColours(colour, stream));
    }
};

/// The command that the command line chose; its result is the exit code.
using Command = std::function<int()>;

/// What the subcommands share while the command line is read.
struct CommandLine
{
    CommonOptions common;
    Command chosen;
};

/// A subcommand with its one-line description and its examples at the end of its help.
CLI::App& AddCommand(CLI::App& parent, const std::string& name, const std::string& description,
                     const std::string& examples);

/// --color and --log-level.
void AddCommonOptions(CLI::App& command, CommonOptions& options);

/// The device and how to reach it.
void AddConnectionOptions(CLI::App& command, ConnectionOptions& options);

/// --json.
void AddJsonFlag(CLI::App& command, bool& json);

// Each of these adds a subcommand, which sets the chosen command when it was called.
void AddShowCommands(CLI::App& app, CommandLine& line);
void AddCallCommand(CLI::App& app, CommandLine& line);
void AddParseCommand(CLI::App& app, CommandLine& line);
void AddPtzCommands(CLI::App& app, CommandLine& line);
void AddSwitchCommands(CLI::App& app, CommandLine& line);
void AddSearchCommands(CLI::App& app, CommandLine& line);
void AddAlarmCommands(CLI::App& app, CommandLine& line);
void AddDeviceCommands(CLI::App& app, CommandLine& line);
void AddMacCommand(CLI::App& app, CommandLine& line);

}  // namespace Tool
