// Runs the command-line tool as a process of its own, without a terminal.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>
#include <vector>

#include <sys/types.h>

namespace TestSupport
{

struct ToolResult
{
    int exitCode = -1;  ///< 128 and more: ended by a signal
    std::string out;
    std::string err;
};

using Environment = std::vector<std::pair<std::string, std::string>>;

/// A running tool. Ended, if need be by force, when the object goes.
class ToolProcess
{
public:
    /// Starts the tool in a session of its own, so that it finds no terminal to ask on.
    explicit ToolProcess(const std::vector<std::string>& arguments,
                         const Environment& environment = {}, const std::string& input = {});
    ~ToolProcess();
    ToolProcess(const ToolProcess&) = delete;
    ToolProcess& operator=(const ToolProcess&) = delete;

    void Signal(int signal) const;
    /// What it has written so far, once that holds `text`; whatever there is after ten seconds.
    [[nodiscard]] std::string OutputWith(const std::string& text) const;
    /// Waits for its end.
    ToolResult Wait();

private:
    std::string directory_;
    pid_t process_ = -1;
};

/// Runs the tool to its end.
ToolResult RunTool(const std::vector<std::string>& arguments, const Environment& environment = {},
                   const std::string& input = {});

/// Runs a line of the shell in which $CAPSET is the tool.
ToolResult RunShell(const std::string& line);

}  // namespace TestSupport
