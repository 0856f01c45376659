// What a device can record and store.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/RecordAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(RecordAbility);
CAPABILITYSET_ABILITY_RECORD(CVRAbility);

bool RecordAbility::GetRecordAbility(RecordAbility& out, unsigned int& err, const int userID)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [] { return query::RequestXml(kRoot).Text(); });
}

bool CVRAbility::GetCVRAbility(CVRAbility& out, unsigned int& err, const int userID)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [] { return query::RequestXml(kRoot).Text(); });
}

}  // namespace CapabilitySet
