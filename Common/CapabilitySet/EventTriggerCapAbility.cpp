// Which reactions each kind of event may start.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventTriggerCapAbility.h"

#include "CapabilitySet/private/QueryFrame.h"

namespace CapabilitySet
{

bool EventTriggerCap::GetEventTriggerCapAbility(EventTriggerCap& out, unsigned int err, int userID,
                                                unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetEventTriggerCapAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 3501, channel); });
}

}  // namespace CapabilitySet
