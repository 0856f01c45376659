// The table of MAC prefixes and company labels as three JSON texts.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string>

namespace CapabilitySet
{

/// Three JSON objects whose members are prefix to label, in the order in which they are loaded.
/// Made when the library loads, or before that by the first who asks, and never destroyed: static
/// objects of a client may use them. Generated from data/mac/ by cmake/MacCompanyTexts.cmake.
const std::array<std::string, 3>& MacCompanyTexts();

}  // namespace CapabilitySet
