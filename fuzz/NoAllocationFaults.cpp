// Under a fuzzer no allocation is made to fail: the sanitizer's own functions stay in place.
// SPDX-License-Identifier: Apache-2.0
#include "support/AllocationFaults.h"

namespace TestSupport
{

NoAllocationFaults::NoAllocationFaults() : before_(false) {}

NoAllocationFaults::~NoAllocationFaults() = default;

}  // namespace TestSupport
