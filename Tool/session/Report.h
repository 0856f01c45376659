// What a command has to show.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "CapabilitySet/RecordTree.h"
#include "Tool/Failure.h"

namespace Tool
{

struct Report
{
    CapabilitySet::RecordNode values;  ///< "values" of --json; its name is the table's title
    std::optional<CapabilitySet::RecordNode> shown = {};  ///< the table, if it is another tree
    std::string remark = {};                              ///< a line below the table
    ExitCode code = kAnswered;
};

}  // namespace Tool
