// What a thermal channel can measure.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/ThermalAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"

namespace CapabilitySet
{

bool ThermalCap::GetThermalCapability(ThermalCap& out, unsigned int& err, const int userID,
                                      int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetThermalCapability",
                        .growth = query::kStandardAbilityGrowth},
                       [&] {
                           return query::StandardAbilityRequest(userID, 3634,
                                                                static_cast<unsigned int>(channel));
                       });
}

bool ManualThermometryCap::GetManualThermometryAbility(ManualThermometryCap& out, unsigned int& err,
                                                       const int userID, unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetManualThermometryAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 6707, channel); });
}

}  // namespace CapabilitySet
