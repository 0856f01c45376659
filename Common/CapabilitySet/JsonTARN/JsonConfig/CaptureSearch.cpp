// Searching captured faces: what to look for, and one page of what was found.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/CaptureSearch.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<FaceRect>;
template struct JsonPart<CaptureTarget>;

template struct JsonRecord<CaptureSearchDescription>;
template struct JsonRecord<CaptureSearchResult>;

}  // namespace CapabilitySet
