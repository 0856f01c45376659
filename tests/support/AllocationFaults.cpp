// Makes allocations fail on demand.
// SPDX-License-Identifier: Apache-2.0
#include "support/AllocationFaults.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <new>

#include <libxml/xmlmemory.h>

/// Called while a sanitizer still sets itself up, before it can check anything.
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

/// As malloc and its kin tell that there is no memory.
UNCHECKED void* NoMemory()
{
    errno = ENOMEM;
    return nullptr;
}

}  // namespace

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
    if (!fault.isSet || fault.isPaused || fault.which != which || fault.left == 0)
        return false;
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
    // A sanitizer's own, where there is one, so that it goes on seeing every block.
    __attribute__((weak)) void* __interceptor_malloc(std::size_t size);
    __attribute__((weak)) void* __interceptor_calloc(std::size_t count, std::size_t size);
    __attribute__((weak)) void* __interceptor_realloc(void* block, std::size_t size);
    void* __libc_malloc(std::size_t size);
    void* __libc_calloc(std::size_t count, std::size_t size);
    void* __libc_realloc(void* block, std::size_t size);

    UNCHECKED void* malloc(std::size_t size)
    {
        if (TestSupport::AllocationFault::Strikes(TestSupport::AllocationFault::Any))
            return TestSupport::NoMemory();
        return __interceptor_malloc != nullptr ? __interceptor_malloc(size) : __libc_malloc(size);
    }

    UNCHECKED void* calloc(std::size_t count, std::size_t size)
    {
        if (TestSupport::AllocationFault::Strikes(TestSupport::AllocationFault::Any))
            return TestSupport::NoMemory();
        return __interceptor_calloc != nullptr ? __interceptor_calloc(count, size)
                                               : __libc_calloc(count, size);
    }

    UNCHECKED void* realloc(void* block, std::size_t size)
    {
        if (TestSupport::AllocationFault::Strikes(TestSupport::AllocationFault::Any))
            return TestSupport::NoMemory();
        return __interceptor_realloc != nullptr ? __interceptor_realloc(block, size)
                                                : __libc_realloc(block, size);
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
    if (block == nullptr)
        throw std::bad_alloc();
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
