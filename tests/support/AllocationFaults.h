// Makes allocations fail on demand: operator new, those of C libraries, or any.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>

#include <gtest/gtest.h>

namespace TestSupport
{

/// During its lifetime, the calling thread's allocation of this ordinal, counted from 1, fails, and
/// with `andLater` every later one too.
class AllocationFault
{
public:
    enum Of
    {
        New,
        Xml,
        Curl,  ///< libcurl's, if the test gives it allocators that call Strikes
        Any    ///< all, including JsonCpp's texts and the logger's pools
    };
    AllocationFault(Of which, std::size_t ordinal, bool andLater = false);
    ~AllocationFault();
    AllocationFault(const AllocationFault&) = delete;
    AllocationFault& operator=(const AllocationFault&) = delete;

    /// Whether an allocation has failed.
    [[nodiscard]] static bool Struck();

    /// Whether the caller's next allocation must fail.
    static bool Strikes(Of which);
};

/// During its lifetime allocations succeed and are not counted: for code that is not under test.
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

/// Blocks of memory that are allocated and not freed: all, or the calling thread's minus those that
/// it freed for others. Without a sanitizer, a write beyond the end of a block ends the program
/// when the block is freed.
long LiveBlocks();
long LiveBlocksOfThread();

/// Hooks libxml2's allocations; call it before any other use of libxml2.
void HookXmlAllocations();

/// Makes each allocation of `act` fail in turn, alone and with all later ones, and passes the
/// result of `act` to `check`, with whether an allocation failed. `check` also runs `act` or
/// something similar, so that what is cached exists again. Returns the number of allocations.
template <class Act, class Check>
std::size_t FailEachAllocation(Act act, Check check)
{
    std::size_t points = 0;
    act();  // creates what is created once per process
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
