// Reads the command line and runs the command that it chooses.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tool/commandline/Command.h"

namespace Tool
{

/// Reads the words behind the program's name, sets the arguments of the chosen command, calls
/// `prepare`, runs the command and returns its exit code. --help, --help-all and --version print
/// instead. Throws a usage failure when the words make no sense.
int RunCommandLine(const Command& program, int argc, const char* const* argv,
                   const std::string& version, const std::function<void()>& prepare);

}  // namespace Tool
