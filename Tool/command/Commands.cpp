// All commands of the tool.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/Commands.h"

#include "Tool/commandline/Help.h"

namespace Tool
{

void DeclareCommands(Command& program, CommonOptions& common)
{
    AddShowCommands(program, common);
    AddCallCommand(program, common);
    AddParseCommand(program, common);
    AddPtzCommands(program, common);
    AddSwitchCommands(program, common);
    AddSearchCommands(program, common);
    AddAlarmCommands(program, common);
    AddDeviceCommands(program, common);
    AddMacCommand(program, common);
    AddHelpCommand(program);
    program.Note(
        "Exit codes: 0 the device answered; 1 it refused or failed; 2 the command line makes no "
        "sense; 128 and more: ended by a signal, such as 130 after Ctrl-C.");
    program.Example("capset show sim:dome BasicCapability");
}

}  // namespace Tool
