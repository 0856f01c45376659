// Help texts, made from what the commands declare.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "Tool/commandline/Command.h"

namespace Tool
{

/// The argument as it stands in a usage line: "DEVICE", "[RECORD...]", "--max N".
std::string Written(const Argument& argument);

/// An argument, option or command with its description.
struct HelpEntry
{
    std::string name;
    std::string description;
};

/// Entries under a heading, such as "Output".
struct HelpSection
{
    std::string heading;
    std::vector<HelpEntry> entries;
};

/// Commands, arguments and options, in the order in which help shows them.
std::vector<HelpSection> HelpSections(const Command& command);

/// "capset search content [OPTIONS] DEVICE".
std::string Usage(const Command& command);

/// The command's usage, arguments, options and examples, wrapped for the terminal.
std::string HelpText(const Command& command);

/// The help of the program and all its commands.
std::string FullHelpText(const Command& program);

/// Adds "capset help [COMMAND...]".
void AddHelpCommand(Command& program);

}  // namespace Tool
