// A device SDK that answers from a script.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace Bench
{

/// The answer to every call.
struct Script
{
    std::string_view answer;            ///< copied into the buffer
    unsigned int smallestBuffer = 0;    ///< bytes; a smaller buffer is refused with 43
    unsigned int writtenOnRefusal = 0;  ///< bytes scribbled into a buffer that is too small
};

/// The process's script; set it between calls.
extern Script script;

}  // namespace Bench
