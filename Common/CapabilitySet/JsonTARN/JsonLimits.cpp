// The limits and options of a JSON capability member.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonLimits.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonPart<JsonLimits>;
template struct JsonPart<JsonTextLimits>;
template struct JsonPart<JsonTimeLimits>;

}  // namespace CapabilitySet
