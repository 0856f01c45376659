// Commands that log in to a device, do something there, and show a report.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>

#include "Tool/command/Arguments.h"
#include "Tool/session/Report.h"
#include "Tool/session/Talk.h"

namespace Tool
{

using DeviceAction = std::function<Report(Talk&)>;

/// What a command's help says.
struct CommandText
{
    const char* name;
    const char* summary;
    const char* example;  ///< what follows the command's own name
};

/// Adds a command that logs in to a device, runs the action and shows its report, as a table or
/// with --json. The command's own options are added to the result.
Command& AddReportCommand(Command& group, CommonOptions& common, const CommandText& text,
                          DeviceAction action);

}  // namespace Tool
