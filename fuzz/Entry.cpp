// The entry point of a fuzzer; FUZZ_TARGET is the function of Targets.h that it runs.
// SPDX-License-Identifier: Apache-2.0
#include <cstddef>
#include <cstdint>

#include "fuzz/Targets.h"

// NOLINTNEXTLINE(readability-identifier-naming): libFuzzer's name
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::FUZZ_TARGET(std::string(reinterpret_cast<const char*>(data), size));
    return 0;
}
