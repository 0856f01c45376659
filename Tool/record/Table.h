// A record as a table for people.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "CapabilitySet/RecordTree.h"
#include "Tool/terminal/Terminal.h"

namespace Tool
{

/// The record with its name and where it comes from in the title, each nested record as an indented
/// section, names to the left, values in one column. Members that are not announced are folded into
/// one closing line of their section. Lines take at most `width` columns as long as names leave
/// room for values.
std::string RenderRecord(const CapabilitySet::RecordNode& record, std::string_view source,
                         std::size_t width, const Paint& paint);

}  // namespace Tool
