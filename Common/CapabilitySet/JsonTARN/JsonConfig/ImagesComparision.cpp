// Comparing the faces of pictures.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/ImagesComparision.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<ImagesCmpDescription>;
template struct JsonRecord<ImagesCmpResult>;

}  // namespace CapabilitySet
