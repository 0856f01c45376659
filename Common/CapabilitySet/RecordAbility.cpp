// What a device can record and store.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/RecordAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

bool RecordAbility::GetRecordAbility(RecordAbility& out, unsigned int& err, const int userID)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetRecordAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 17, query::RequestXml(kRoot).Text()); });
}

bool CVRAbility::GetCVRAbility(CVRAbility& out, unsigned int& err, const int userID)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetCVRAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 17, query::RequestXml(kRoot).Text()); });
}

}  // namespace CapabilitySet
