// Commands to several subsystems, zones or outputs of an alarm host: one by one or as a batch.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "Tool/command/ReportCommand.h"

namespace Tool
{

/// What a batch's answer says of the items it did not carry out: their numbers, and in words why.
std::map<int, std::string> ItemErrors(const std::string& answer);

/// Commands the only item with `one`, several with `batch`, which is to leave its answer as the
/// talk's last one, or one by one where there is no `batch`, and reports how each fared. `noun`
/// names an item: "subsystem".
Report CommandItems(Talk& talk, const std::string& noun, const std::vector<int>& ids,
                    const std::function<void(int id)>& one, const std::function<void()>& batch);

/// "1,3,5".
std::string JoinedNumbers(const std::vector<int>& numbers);

}  // namespace Tool
