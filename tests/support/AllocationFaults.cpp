// Makes allocations fail on demand.
// SPDX-License-Identifier: Apache-2.0
#include "support/AllocationFaults.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <new>

#include <libxml/xmlmemory.h>
#include <malloc.h>
#include <unistd.h>

/// Called while a sanitizer initialises, before it can check anything.
#define UNCHECKED __attribute__((no_sanitize("address", "undefined", "thread")))

namespace TestSupport
{
namespace
{

thread_local struct
{
    bool isSet;
    bool isPaused;
    bool andLater;
    bool struck;
    AllocationFault::Of which;
    std::size_t left;
} fault;

void* XmlAllocate(std::size_t size)
{
    return AllocationFault::Strikes(AllocationFault::Xml) ? nullptr : std::malloc(size);
}

void* XmlReallocate(void* block, std::size_t size)
{
    return AllocationFault::Strikes(AllocationFault::Xml) ? nullptr : std::realloc(block, size);
}

char* XmlDuplicate(const char* text)
{
    return AllocationFault::Strikes(AllocationFault::Xml) ? nullptr : strdup(text);
}

/// Reports a lack of memory as malloc does.
UNCHECKED void* NoMemory()
{
    errno = ENOMEM;
    return nullptr;
}

std::atomic<long> liveBlocks{0};
thread_local long liveBlocksOfThread = 0;

void CountBlock(long change)
{
    liveBlocks.fetch_add(change, std::memory_order_relaxed);
    liveBlocksOfThread += change;
}

/// At the end of each block, after bytes that nobody may write.
struct Seal
{
    std::size_t size;
    std::uintptr_t mark;
};
constexpr std::size_t kSealed = sizeof(Seal) + 8;
constexpr unsigned char kUntold = 0xA5;
/// Fills the beginning of a block before it is written and after it is freed.
constexpr int kJunk = 0xE5;
constexpr std::size_t kMostJunk = 64 * 1024;

unsigned char* SealOf(void* block)
{
    return static_cast<unsigned char*>(block) + malloc_usable_size(block) - sizeof(Seal);
}

std::uintptr_t MarkOf(const void* block)
{
    return reinterpret_cast<std::uintptr_t>(block) ^ 0x5EA1'5EA1'5EA1'5EA1U;
}

void* Junk(void* block, std::size_t size)
{
    if (block != nullptr) {
        std::memset(block, kJunk, std::min(size, kMostJunk));
    }
    return block;
}

/// Seals a block that was allocated with kSealed extra bytes.
void* Sealed(void* block, std::size_t size)
{
    if (block == nullptr) {
        return nullptr;
    }
    unsigned char* const behind = static_cast<unsigned char*>(block) + size;
    std::memset(behind, kUntold, static_cast<std::size_t>(SealOf(block) - behind));
    const Seal seal{size, MarkOf(block)};
    std::memcpy(SealOf(block), &seal, sizeof seal);
    CountBlock(1);
    return block;
}

/// Ends the program if something was written beyond the block. Returns its size, or 0 if it has no
/// seal because none of the functions below allocated it.
std::size_t BreakSeal(void* block)
{
    Seal seal{};
    if (block != nullptr) {
        std::memcpy(&seal, SealOf(block), sizeof seal);
    }
    if (block == nullptr || seal.mark != MarkOf(block)) {
        return 0;
    }
    for (auto* at = static_cast<unsigned char*>(block) + seal.size; at != SealOf(block); ++at) {
        if (*at != kUntold) {
            constexpr char kWhy[] = "something was written behind the end of a block of memory\n";
            static_cast<void>(!write(STDERR_FILENO, kWhy, sizeof kWhy - 1));
            std::abort();
        }
    }
    std::memset(SealOf(block), 0, sizeof seal);
    CountBlock(-1);
    return seal.size;
}

}  // namespace

long LiveBlocks()
{
    return liveBlocks.load(std::memory_order_relaxed);
}

long LiveBlocksOfThread()
{
    return liveBlocksOfThread;
}

AllocationFault::AllocationFault(Of which, std::size_t ordinal, bool andLater)
{
    fault = {true, false, andLater, false, which, ordinal};
}

AllocationFault::~AllocationFault()
{
    fault.isSet = false;
}

UNCHECKED bool AllocationFault::Strikes(Of which)
{
    if (!fault.isSet || fault.isPaused || fault.which != which || fault.left == 0) {
        return false;
    }
    if (fault.left > 1) {
        --fault.left;
        return false;
    }
    fault.left = fault.andLater ? 1 : 0;
    fault.struck = true;
    return true;
}

bool AllocationFault::Struck()
{
    return fault.struck;
}

NoAllocationFaults::NoAllocationFaults() : before_(fault.isPaused)
{
    fault.isPaused = true;
}

NoAllocationFaults::~NoAllocationFaults()
{
    fault.isPaused = before_;
}

void HookXmlAllocations()
{
    xmlMemSetup(std::free, XmlAllocate, XmlReallocate, XmlDuplicate);
}

}  // namespace TestSupport

// NOLINTBEGIN(readability-identifier-naming,bugprone-reserved-identifier): the C library's names
extern "C"
{
    // The sanitizer's, if there is one, so that it still sees every block.
    __attribute__((weak)) void* __interceptor_malloc(std::size_t size);
    __attribute__((weak)) void* __interceptor_calloc(std::size_t count, std::size_t size);
    __attribute__((weak)) void* __interceptor_realloc(void* block, std::size_t size);
    __attribute__((weak)) void __interceptor_free(void* block);
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);
    void __libc_free(void* block);

    UNCHECKED void* malloc(std::size_t size)
    {
        using namespace TestSupport;
        if (AllocationFault::Strikes(AllocationFault::Any) || size > PTRDIFF_MAX) {
            return NoMemory();
        }
        return __interceptor_malloc != nullptr
                   ? __interceptor_malloc(size)
                   : Sealed(Junk(__libc_malloc(size + kSealed), size), size);
    }

    UNCHECKED void* calloc(std::size_t count, std::size_t size)
    {
        using namespace TestSupport;
        std::size_t all = 0;
        if (AllocationFault::Strikes(AllocationFault::Any) ||
            __builtin_mul_overflow(count, size, &all) || all > PTRDIFF_MAX) {
            return NoMemory();
        }
        return __interceptor_calloc != nullptr ? __interceptor_calloc(count, size)
                                               : Sealed(__libc_calloc(1, all + kSealed), all);
    }

    UNCHECKED void* realloc(void* block, std::size_t size)
    {
        using namespace TestSupport;
        if (AllocationFault::Strikes(AllocationFault::Any) || size > PTRDIFF_MAX) {
            return NoMemory();
        }
        if (__interceptor_realloc != nullptr) {
            return __interceptor_realloc(block, size);
        }
        static_cast<void>(BreakSeal(block));
        return Sealed(__libc_realloc(block, size + kSealed), size);
    }

    UNCHECKED void free(void* block)
    {
        if (__interceptor_free != nullptr) {
            return __interceptor_free(block);
        }
        TestSupport::Junk(block, TestSupport::BreakSeal(block));
        __libc_free(block);
    }
}
// NOLINTEND(readability-identifier-naming,bugprone-reserved-identifier)

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    using TestSupport::AllocationFault;
    return AllocationFault::Strikes(AllocationFault::New) ? nullptr : std::malloc(size);
}

void* operator new(std::size_t size)
{
    void* const block = operator new(size, std::nothrow);
    if (block == nullptr) {
        throw std::bad_alloc();
    }
    return block;
}

void operator delete(void* block) noexcept
{
    std::free(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    std::free(block);
}
