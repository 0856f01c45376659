// Abilities of a thermal channel. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Thermal functions of a channel.
struct CAPABILITYSET_API ThermalCap : AbilityRecord<ThermalCap>
{
    static constexpr const char* kRoot = "ThermalCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3634.
    static bool GetThermalCapability(ThermalCap& out, unsigned int& err, const int userID,
                                     int channel);
};

/// Manual temperature measurement.
struct CAPABILITYSET_API ManualThermometryCap : AbilityRecord<ManualThermometryCap>
{
    static constexpr const char* kRoot = "ManualThermometryCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 6707.
    static bool GetManualThermometryAbility(ManualThermometryCap& out, unsigned int& err,
                                            const int userID, unsigned int channel);
};

}  // namespace CapabilitySet
