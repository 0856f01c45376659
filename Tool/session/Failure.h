// What went wrong, as one sentence with the number and a hint.
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

/// Ends the program after its message was told.
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

/// What a failed call of the SDK meant.
struct SdkFailure
{
    unsigned int error = 0;
    std::string text;    ///< the number in words
    std::string detail;  ///< what the SDK knows beyond the number, may be empty
};

/// The calling thread's last failure, told as that of an operation which gave `error`.
SdkFailure LastFailure(unsigned int error);

/// "error 23: the device does not support this (...)".
std::string Told(const SdkFailure& failure);

/// What a person can do about it, behind a semicolon; empty when there is nothing.
std::string Hint(unsigned int error);

/// Whether the device does not know what it was asked for.
bool MeansUnsupported(unsigned int error);

/// Whether nothing else can be asked of the device either.
bool MeansUnreachable(unsigned int error);

}  // namespace Tool
