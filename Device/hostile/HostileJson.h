// Spoils a sound JSON document everywhere at once.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Device
{

/// Replaces every number by `number`, which need not be one.
std::string JsonWithNumbers(const std::string& sample, const std::string& number);

/// Replaces every string.
std::string JsonWithTexts(const std::string& sample, const std::string& with);

/// Swaps arrays and objects, numbers and strings, everywhere below the document's root.
std::string JsonWithWrongKinds(const std::string& sample);

/// Renames the top-level member `root`.
std::string JsonRenamed(const std::string& sample, const std::string& root,
                        const std::string& name);

/// Inserts members (each followed by a comma) before those of the root object.
std::string JsonWithMembers(const std::string& sample, const std::string& members);

}  // namespace Device
