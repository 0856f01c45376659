// Replays seeds and finds of the library's and the simulated device's fuzz targets.
// SPDX-License-Identifier: Apache-2.0
#include "support/FuzzCorpus.h"

namespace TestSupport
{

INSTANTIATE_TEST_SUITE_P(
    Targets, FuzzCorpusTest,
    testing::Values(FuzzTarget{"Xml", Fuzz::Xml}, FuzzTarget{"Elements", Fuzz::Elements},
                    FuzzTarget{"Json", Fuzz::Json}, FuzzTarget{"Number", Fuzz::Number},
                    FuzzTarget{"Transparent", Fuzz::Transparent},
                    FuzzTarget{"Requests", Fuzz::Requests}, FuzzTarget{"Profile", Fuzz::Profile}),
    NameOf);

}  // namespace TestSupport
