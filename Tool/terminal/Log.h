// The log on stderr.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Tool
{

/// Lets the library and the tool log to stderr from a level on: "debug", "info" or "error". Without
/// this call both are silent.
void LogToStderr(const std::string& level);

/// True if LogInfo writes anything.
bool IsLoggingInfo();

/// Logs a line of the tool's own.
void LogInfo(const std::string& line);

}  // namespace Tool
