// The parts of capset search that stand in files of their own.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tool/command/Arguments.h"

namespace Tool
{

/// "search people" and "search task".
void AddPeopleCommands(CLI::App& group, CommandLine& line);

}  // namespace Tool
