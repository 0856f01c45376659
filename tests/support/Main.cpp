// The main function of tests that parse XML on several threads or with failing allocations.
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>
#include <libxml/parser.h>

#include "support/AllocationFaults.h"

int main(int argc, char** argv)
{
    TestSupport::HookXmlAllocations();
    xmlInitParser();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
