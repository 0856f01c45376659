// Help texts and manual pages, made from what the commands declare.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Tool/commandline/Command.h"

namespace Tool
{

/// The argument as it stands in a usage line: "DEVICE", "[RECORD...]", "--max N".
std::string Written(const Argument& argument);

/// The command's usage, arguments, options and examples, wrapped for the terminal.
std::string HelpText(const Command& command);

/// The help of the program and all its commands.
std::string FullHelpText(const Command& program);

/// Adds "capset help [COMMAND...]".
void AddHelpCommand(Command& program);

}  // namespace Tool
