// The table of MAC prefixes and company labels as three JSON texts.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string_view>

namespace CapabilitySet
{

/// Three JSON objects whose members are prefix to label, in the order in which they are loaded.
/// Literals: there before anything is constructed and after everything is destroyed. Generated from
/// data/mac/ by cmake/MacCompanyTexts.cmake.
std::array<std::string_view, 3> MacCompanyTexts();

}  // namespace CapabilitySet
