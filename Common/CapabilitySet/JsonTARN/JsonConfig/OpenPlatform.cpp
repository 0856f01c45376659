// The algorithm models of the AI open platform.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/OpenPlatform.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<GetAIOPAlgorithmModel>;

}  // namespace CapabilitySet
