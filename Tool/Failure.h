// How a command ends: exit codes, and failures that end it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>
#include <string>

namespace Tool
{

/// Exit codes of the program.
enum ExitCode
{
    kAnswered = 0,  ///< the device answered
    kFailed = 1,    ///< the device refused or could not be asked, or a document cannot be read
    kUsage = 2,     ///< the command line makes no sense
};

/// Ends the program. The message is one sentence for the user.
class Failure : public std::runtime_error
{
public:
    explicit Failure(const std::string& message, ExitCode exitCode = kFailed)
        : std::runtime_error(message), exitCode_(exitCode)
    {
    }

    [[nodiscard]] ExitCode Code() const { return exitCode_; }

private:
    ExitCode exitCode_;
};

}  // namespace Tool
