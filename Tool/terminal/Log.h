// The library's log on stderr.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Tool
{

/// Lets the library log to stderr from a level on: "debug", "info" or "error". Without this call
/// the library is silent.
void LogToStderr(const std::string& level);

}  // namespace Tool
