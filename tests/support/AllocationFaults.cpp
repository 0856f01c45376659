// Makes allocations fail on demand.
// SPDX-License-Identifier: Apache-2.0
#include "support/AllocationFaults.h"

#include <cstdlib>
#include <cstring>
#include <new>

#include <libxml/xmlmemory.h>

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

}  // namespace

AllocationFault::AllocationFault(Of which, std::size_t ordinal, bool andLater)
{
    fault = {true, false, andLater, false, which, ordinal};
}

AllocationFault::~AllocationFault()
{
    fault.isSet = false;
}

bool AllocationFault::Strikes(Of which)
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
