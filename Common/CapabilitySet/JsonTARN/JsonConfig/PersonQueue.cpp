// Searching queue statistics: lengths and waiting times.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/PersonQueue.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<PersonQueueCountingDescription>;
template struct JsonRecord<PersonQueueCountingResult>;
template struct JsonRecord<PersonQueueTimeDescription>;
template struct JsonRecord<PersonQueueTimeResult>;

}  // namespace CapabilitySet
