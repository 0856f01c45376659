// Fuzzers make no allocation fail: the sanitizer's functions stay in place.
// SPDX-License-Identifier: Apache-2.0
#include "support/AllocationFaults.h"

namespace TestSupport
{

NoAllocationFaults::NoAllocationFaults() : before_(false) {}

NoAllocationFaults::~NoAllocationFaults() = default;

}  // namespace TestSupport
