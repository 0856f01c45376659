// Makes allocations fail on demand: operator new, and the allocations of C libraries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace TestSupport
{

/// While one lives, the calling thread's allocation of this ordinal, counted from 1, fails, and
/// every later one too when `andLater`.
class AllocationFault
{
public:
    enum Of
    {
        New,
        Xml,
        Curl  ///< of a test that hands libcurl allocators which ask Strikes
    };
    AllocationFault(Of which, std::size_t ordinal, bool andLater = false);
    ~AllocationFault();
    AllocationFault(const AllocationFault&) = delete;
    AllocationFault& operator=(const AllocationFault&) = delete;

    /// Whether an allocation was made to fail.
    [[nodiscard]] static bool Struck();

    /// Whether the allocation that the caller is about to make fails.
    static bool Strikes(Of which);
};

/// Allocations succeed, uncounted, while one lives: for what is not under test.
class NoAllocationFaults
{
public:
    NoAllocationFaults();
    ~NoAllocationFaults();
    NoAllocationFaults(const NoAllocationFaults&) = delete;
    NoAllocationFaults& operator=(const NoAllocationFaults&) = delete;

private:
    bool before_;
};

/// Hooks libxml2's allocations; before anything else is done with it.
void HookXmlAllocations();

}  // namespace TestSupport
