// Manual actions: face snapshots, tracking, thermometry, de-icing.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/ManualControl.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<ManualFaceSnapCfg>;
template struct JsonRecord<ManualPersonArmingTrack>;
template struct JsonRecord<ManualClickThermometry>;
template struct JsonRecord<ManualPTDeicingCfg>;

}  // namespace CapabilitySet
