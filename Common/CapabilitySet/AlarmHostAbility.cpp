// What an alarm host and its emergency help can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AlarmHostAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

bool AlarmHostAbility::GetAlarmHostAbility(AlarmHostAbility& out, unsigned int& err,
                                           const int userID, bool /*extended*/)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetAlarmHostAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 17, query::RequestXml(kRoot).Text()); });
}

bool AlarmForHelpAbility::GetAlarmForHelpAbility(AlarmForHelpAbility& out, unsigned int err,
                                                 int userID, unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetAlarmForHelpAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 2222, channel); });
}

}  // namespace CapabilitySet
