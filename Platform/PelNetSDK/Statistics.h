// Counters of what the transports have done in this process.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <atomic>

namespace PelNet
{

struct Counters
{
    std::atomic<unsigned long long> exchanges{0};
    std::atomic<unsigned long long> connections{0};
    std::atomic<unsigned long long> fromMemory{0};
};

inline Counters counters;

}  // namespace PelNet
