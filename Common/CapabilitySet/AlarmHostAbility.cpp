// What an alarm host and its emergency help can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AlarmHostAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(AlarmHostAbility);
CAPABILITYSET_ABILITY_RECORD(AlarmForHelpAbility);

bool AlarmHostAbility::GetAlarmHostAbility(AlarmHostAbility& out, unsigned int& err,
                                           const int userID, bool /*extended*/)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [] { return query::RequestXml(kRoot).Text(); });
}

bool AlarmForHelpAbility::GetAlarmForHelpAbility(AlarmForHelpAbility& out, unsigned int err,
                                                 int userID, unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 2222, channel);
}

}  // namespace CapabilitySet
