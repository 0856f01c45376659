// Arguments that several commands share.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Tool/commandline/Command.h"
#include "Tool/session/Connection.h"
#include "Tool/session/Paging.h"
#include "Tool/session/SearchTime.h"
#include "Tool/session/TaskRun.h"
#include "Tool/terminal/Terminal.h"

namespace Tool
{

/// What every command can be told.
struct CommonOptions
{
    ColourChoice colour = ColourChoice::Auto;
    std::string logLevel;

    [[nodiscard]] Paint PaintFor(std::FILE* stream) const
    {
        return Paint(WantsColours(colour, stream));
    }
};

/// --color and --log-level.
void AddCommonOptions(Command& command, CommonOptions& options);

/// The device and how to reach it.
void AddConnectionOptions(Command& command, ConnectionOptions& options);

/// How records are shown.
struct RecordOutput
{
    bool json = false;
    bool showSecrets = false;
};

/// --json and --show-secrets.
void AddOutputOptions(Command& command, RecordOutput& output);

/// --json.
void AddJsonFlag(Command& command, bool& json);

/// --max and --limit.
void AddPageOptions(Command& command, PageOptions& options);

/// --limit alone, for answers that come in one page.
void AddLimitOption(Command& command, PageOptions& options);

/// --from and --to.
void AddTimeOptions(Command& command, TimeOptions& options);

/// --task and --wait.
void AddTaskOptions(Command& command, TaskOptions& options);

/// --download.
void AddDownloadOption(Command& command, std::string& file);

}  // namespace Tool
