// Replays seeds and finds of the SDK's fuzz targets.
// SPDX-License-Identifier: Apache-2.0
#include "support/FuzzCorpus.h"

namespace TestSupport
{

INSTANTIATE_TEST_SUITE_P(Targets, FuzzCorpusTest,
                         testing::Values(FuzzTarget{"Refusal", Fuzz::Refusal},
                                         FuzzTarget{"HttpAnswer", Fuzz::HttpAnswer}),
                         NameOf);

}  // namespace TestSupport
