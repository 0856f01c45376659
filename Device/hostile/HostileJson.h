// Writes a sound JSON document again with something wrong in every place.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Device
{

/// Every number replaced by a text that stands where the number stood.
std::string JsonWithNumbers(const std::string& sample, const std::string& number);

/// Every text replaced.
std::string JsonWithTexts(const std::string& sample, const std::string& with);

/// Arrays where objects are due, objects where arrays are, numbers for texts and texts for numbers;
/// the document itself stays an object.
std::string JsonWithWrongKinds(const std::string& sample);

/// The top-level member `root` under another name.
std::string JsonRenamed(const std::string& sample, const std::string& root,
                        const std::string& name);

/// Members (each with its comma) put before those of the document's object.
std::string JsonWithMembers(const std::string& sample, const std::string& members);

}  // namespace Device
