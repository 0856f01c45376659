// Commands to several items of an alarm host: one by one or as a batch.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Tool/command/ReportCommand.h"

namespace Tool
{

/// The items that a batch command failed for, from the device's answer: numbers and reasons.
std::map<int, std::string> ItemErrors(const std::string& answer);

/// Sends a command with `one` if there is one item or no `batch`, otherwise with `batch`, whose
/// answer must be the talk's last one. Reports the result of each item. `noun` names an item:
/// "subsystem".
Report CommandItems(Talk& talk, const std::string& noun, const std::vector<int>& ids,
                    const std::function<void(int id)>& one, const std::function<void()>& batch);

/// "1,3,5".
std::string JoinedNumbers(const std::vector<int>& numbers);

}  // namespace Tool
