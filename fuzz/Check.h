// How a fuzz target reports a violated property.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>
#include <string>

namespace Fuzz
{

/// Throws std::logic_error with the property and what it is about, unless it holds.
inline void Require(bool holds, const char* property, const std::string& about = {})
{
    if (!holds) {
        throw std::logic_error(about.empty() ? property : about + ": " + property);
    }
}

}  // namespace Fuzz
