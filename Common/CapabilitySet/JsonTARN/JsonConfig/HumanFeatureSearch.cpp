// Searching by human features: the search's task, its progress, its results.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/HumanFeatureSearch.h"

#include "CapabilitySet/private/json/JsonRecordMembers.h"

namespace CapabilitySet
{

template struct JsonRecord<HFPDCaptureLibCollisionTask>;
template struct JsonRecord<HFPDSearchProgress>;
template struct JsonRecord<HFPDSearchFaceResult>;

void HFPDProgress::Parse(const Json::Value& progress)
{
    if (progress.isNull()) {
        return;
    }
    value = (progress.isObject() ? json::MemberOf(progress, "value") : progress).asInt();
    present = true;
}

}  // namespace CapabilitySet
