// Makes allocations fail on demand: operator new, those of C libraries, or any.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

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
        Curl,  ///< of a test that hands libcurl allocators which ask Strikes
        Any    ///< whatever asks for memory: these two, JsonCpp's texts, the logger's pools
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

/// Blocks of memory that are allocated and not freed: all, or the calling thread's less those that
/// it has freed for others. Without a sanitizer, writing behind the end of one ends the program
/// when the block is freed.
long LiveBlocks();
long LiveBlocksOfThread();

/// Hooks libxml2's allocations; before anything else is done with it.
void HookXmlAllocations();

/// Makes each allocation of `act` fail in turn, alone and with all that follow, and hands what
/// `act` gives to `check`, with whether an allocation failed; `check` also runs `act` or its like,
/// so that what is kept is there again. Gives the number of allocations.
template <class Act, class Check>
std::size_t FailEachAllocation(Act act, Check check)
{
    std::size_t points = 0;
    act();  // what is made once for the process is made now
    for (const bool andLater : {false, true}) {
        bool struck = true;
        for (std::size_t ordinal = 1; struck && !testing::Test::HasFailure(); ++ordinal) {
            SCOPED_TRACE("allocation " + std::to_string(ordinal) + (andLater ? " and later" : ""));
            const long before = LiveBlocks();
            {
                const auto outcome = [&] {
                    const AllocationFault fault(AllocationFault::Any, ordinal, andLater);
                    return act();
                }();
                struck = AllocationFault::Struck();
                points = ordinal - 1;
                check(outcome, struck);
            }
            EXPECT_LE(LiveBlocks(), before) << "memory that is not freed";
        }
    }
    return points;
}

}  // namespace TestSupport
