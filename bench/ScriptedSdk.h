// A device SDK without a device: answers come from a script.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace Bench
{

/// What the SDK's calls answer, each time they are called.
struct Script
{
    std::string_view answer;            ///< copied into the buffer
    unsigned int smallestBuffer = 0;    ///< bytes; a smaller buffer is refused with 43
    unsigned int writtenOnRefusal = 0;  ///< bytes scribbled into a buffer that is too small
};

/// The script of the process; set it between calls.
extern Script script;

}  // namespace Bench
