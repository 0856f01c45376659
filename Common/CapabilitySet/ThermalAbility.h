// What a thermal channel can measure.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Thermal functions of a channel.
struct CAPABILITYSET_API ThermalCap : AbilityRecord<ThermalCap>
{
    static constexpr const char* kRoot = "ThermalCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel.
    static bool GetThermalCapability(ThermalCap& out, unsigned int& err, const int userID,
                                     int channel);
};

/// Temperature measurement by hand.
struct CAPABILITYSET_API ManualThermometryCap : AbilityRecord<ManualThermometryCap>
{
    static constexpr const char* kRoot = "ManualThermometryCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel.
    static bool GetManualThermometryAbility(ManualThermometryCap& out, unsigned int& err,
                                            const int userID, unsigned int channel);
};

}  // namespace CapabilitySet
