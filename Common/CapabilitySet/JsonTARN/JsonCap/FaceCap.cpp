// What a device can do with faces and people: comparing pictures, searching by features.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/FaceCap.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<ImagesComparisionCapbility>;
template struct JsonRecord<HFPDCapbility>;

}  // namespace CapabilitySet
