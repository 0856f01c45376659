// Runs the command-line tool in a process of its own, without a terminal.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

#include "support/TemporaryFolder.h"

namespace TestSupport
{

struct ToolResult
{
    int exitCode = -1;  ///< 128 and more: ended by a signal
    std::string out;
    std::string err;
};

using Environment = std::vector<std::pair<std::string, std::string>>;

/// A running tool. It is killed if it still runs when the object goes.
class ToolProcess
{
public:
    /// Starts the tool in a session of its own, where it finds no terminal.
    explicit ToolProcess(const std::vector<std::string>& arguments,
                         const Environment& environment = {}, const std::string& input = {});
    ~ToolProcess();
    ToolProcess(const ToolProcess&) = delete;
    ToolProcess& operator=(const ToolProcess&) = delete;

    void Signal(int signal) const;
    /// What it has written so far, as soon as that contains `text`, or after ten seconds.
    [[nodiscard]] std::string OutputWith(const std::string& text) const;
    /// Waits for its end.
    ToolResult Wait();

private:
    TemporaryFolder folder_;
    pid_t process_ = -1;
};

/// Runs the tool to its end.
ToolResult RunTool(const std::vector<std::string>& arguments, const Environment& environment = {},
                   const std::string& input = {});

/// Runs a shell line in which $CAPSET is the tool and $FOLDER an empty folder.
ToolResult RunShell(const std::string& line);

}  // namespace TestSupport
