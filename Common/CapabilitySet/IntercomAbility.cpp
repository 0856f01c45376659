// What a video intercom station can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/IntercomAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

bool IntercomNoticeVideoAbility::GetNoticeVideoCapability(IntercomNoticeVideoAbility& out,
                                                          unsigned int& err, const int userID,
                                                          int channel)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetNoticeVideoCapability",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 20, query::ChannelXml(kRoot, channel)); });
}

bool IntercomDeviceIpViewAbility::GetIntercomDeviceIpViewAbility(IntercomDeviceIpViewAbility& out,
                                                                 unsigned int& err,
                                                                 const int userID, int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetIntercomDeviceIpViewAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 20, query::ChannelXml("IpViewDevAbility", channel));
                       });
}

}  // namespace CapabilitySet
