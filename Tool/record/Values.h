// Members of a record as short texts for people.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "CapabilitySet/RecordTree.h"
#include "Tool/terminal/Grid.h"

namespace Tool
{

/// The member as one text: "yes", "1..8 (default 4)", "a, b, c". Nothing if it has members that
/// need lines of their own.
std::optional<Cell> InOneLine(const CapabilitySet::RecordNode& node);

/// The attributes of an element except limits, options and namespaces: "version 2.0". May be
/// empty.
std::string PlainAttributes(const CapabilitySet::RecordNode& element);

/// True if the node is an attribute of an element.
bool IsAttribute(const CapabilitySet::RecordNode& node);

}  // namespace Tool
