// Searching captured faces: conditions, and a page of results.
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
