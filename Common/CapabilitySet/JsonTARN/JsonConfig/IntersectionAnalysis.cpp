// Traffic analysis at intersections: its settings, and searching its results.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/IntersectionAnalysis.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<IntersectionAnalysisConfig>;
template struct JsonRecord<IntersectionAnalysisCondition>;
template struct JsonRecord<IntersectionAnalysisResult>;

}  // namespace CapabilitySet
