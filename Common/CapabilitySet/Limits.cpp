// What one answer of a device may cost at most.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/Limits.h"

#include <atomic>

namespace CapabilitySet::limits
{
namespace
{

std::atomic<std::size_t> documentMemory{kDocumentMemory};

}  // namespace

std::size_t DocumentMemory()
{
    return documentMemory.load(std::memory_order_relaxed);
}

void SetDocumentMemory(std::size_t bytes)
{
    documentMemory.store(bytes, std::memory_order_relaxed);
}

}  // namespace CapabilitySet::limits
