// How a fuzz target tells that a property does not hold.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <stdexcept>
#include <string>

namespace Fuzz
{

/// Throws std::logic_error with the property's sentence, and what it was about, unless it holds.
inline void Require(bool holds, const char* property, const std::string& about = {})
{
    if (!holds) {
        throw std::logic_error(about.empty() ? property : about + ": " + property);
    }
}

}  // namespace Fuzz
