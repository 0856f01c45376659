// All commands of the tool.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Tool/command/Arguments.h"

namespace Tool
{

constexpr const char* kProgramSummary = "Show what a video-security device can do";

/// Declares every command. `common` is set when the command line is read.
void DeclareCommands(Command& program, CommonOptions& common);

// Each declares one command, or one group.
void AddShowCommands(Command& program, CommonOptions& common);
void AddCallCommand(Command& program, CommonOptions& common);
void AddParseCommand(Command& program, CommonOptions& common);
void AddPtzCommands(Command& program, CommonOptions& common);
void AddSwitchCommands(Command& program, CommonOptions& common);
void AddSearchCommands(Command& program, CommonOptions& common);
void AddAlarmCommands(Command& program, CommonOptions& common);
void AddDeviceCommands(Command& program, CommonOptions& common);
void AddMacCommand(Command& program, CommonOptions& common);

/// "search people" and "search task".
void AddPeopleCommands(Command& group, CommonOptions& common);

}  // namespace Tool
