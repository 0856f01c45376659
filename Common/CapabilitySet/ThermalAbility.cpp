// What a thermal channel can measure.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/ThermalAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(ThermalCap);
CAPABILITYSET_ABILITY_RECORD(ManualThermometryCap);

bool ThermalCap::GetThermalCapability(ThermalCap& out, unsigned int& err, const int userID,
                                      int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3634,
                                     static_cast<unsigned int>(channel));
}

bool ManualThermometryCap::GetManualThermometryAbility(ManualThermometryCap& out, unsigned int& err,
                                                       const int userID, unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 6707, channel);
}

}  // namespace CapabilitySet
