// What a video intercom station can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/IntercomAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(IntercomNoticeVideoAbility);
CAPABILITYSET_ABILITY_RECORD(IntercomDeviceIpViewAbility);

bool IntercomNoticeVideoAbility::GetNoticeVideoCapability(IntercomNoticeVideoAbility& out,
                                                          unsigned int& err, const int userID,
                                                          int channel)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 20,
                                   [&] { return query::ChannelXml(kRoot, channel); });
}

bool IntercomDeviceIpViewAbility::GetIntercomDeviceIpViewAbility(IntercomDeviceIpViewAbility& out,
                                                                 unsigned int& err,
                                                                 const int userID, int channel)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 20,
                                   [&] { return query::ChannelXml(kRequestRoot, channel); });
}

}  // namespace CapabilitySet
