// Whether a test should run its long rounds (script/test --deep).
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>

namespace TestSupport
{

inline bool IsDeep()
{
    return std::getenv("CAPABILITYSET_DEEP") != nullptr;  // NOLINT(concurrency-mt-unsafe)
}

}  // namespace TestSupport
