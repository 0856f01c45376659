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

/// The member as one text: "yes", "1..8 (default 4)", "a, b, c". Nothing when it has members of its
/// own that need lines of their own.
std::optional<Cell> InOneLine(const CapabilitySet::RecordNode& node);

/// Attributes of an element that say no limits, options or namespaces: "version 2.0". Empty when
/// there are none.
std::string PlainAttributes(const CapabilitySet::RecordNode& element);

/// Whether the node stands for an attribute of an element.
bool IsAttribute(const CapabilitySet::RecordNode& node);

}  // namespace Tool
