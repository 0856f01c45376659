// What a channel can do in its present mode of operation.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/DynChannelAbility.h"

#include "CapabilitySet/private/QueryFrame.h"
#include "CapabilitySet/private/RequestXml.h"

namespace CapabilitySet
{

bool DynChannelAbility::GetDynChannelAbility(DynChannelAbility& out, unsigned int& err,
                                             const int userID, const int channel)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetDynChannelAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 11, query::ChannelXml(kRoot, channel)); });
}

}  // namespace CapabilitySet
