// The table of MAC prefixes and company labels as three JSON texts.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <string_view>

namespace CapabilitySet
{

/// Three JSON objects that map prefixes to labels, in loading order. They are literals, so usable
/// before any static object is constructed and after all are destroyed. Generated from data/mac/ by
/// cmake/MacCompanyTexts.cmake.
std::array<std::string_view, 3> MacCompanyTexts();

}  // namespace CapabilitySet
