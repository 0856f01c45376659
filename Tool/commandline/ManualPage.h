// Manual pages, made from what the commands declare.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "Tool/commandline/Command.h"

namespace Tool
{

/// The page of a command, or of a group with all its commands, as text for man. `version` is that
/// of the program, `more` further sections in the same format.
std::string ManualPage(const Command& command, const std::string& version,
                       const std::string& more = {});

}  // namespace Tool
