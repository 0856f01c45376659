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

/// The record as a table: its name and source as the title, names to the left, values in one
/// column, nested records as indented sections. Members that were not announced are listed in one
/// line at the end of their section. Lines are at most `width` columns wide if names leave room for
/// values.
std::string RenderRecord(const CapabilitySet::RecordNode& record, std::string_view source,
                         std::size_t width, const Paint& paint);

}  // namespace Tool
