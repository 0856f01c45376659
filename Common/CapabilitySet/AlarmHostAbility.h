// What an alarm host and its emergency help can do.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Subsystems, zones, outputs and sirens of an alarm host.
struct CAPABILITYSET_API AlarmHostAbility : AbilityRecord<AlarmHostAbility>
{
    static constexpr const char* kRoot = "AlarmHostAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for the alarm host functions; the switch is accepted for the clients that pass it and
    /// is not sent.
    static bool GetAlarmHostAbility(AlarmHostAbility& out, unsigned int& err, const int userID,
                                    bool extended);
};

/// Emergency help calls of a channel.
struct CAPABILITYSET_API AlarmForHelpAbility : AbilityRecord<AlarmForHelpAbility>
{
    static constexpr const char* kRoot = "AlarmForHelpAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel. Clients pass the error slot by value, so they learn of a failure from
    /// the result and Keel::Error::GetLastError() alone.
    static bool GetAlarmForHelpAbility(AlarmForHelpAbility& out, unsigned int err, int userID,
                                       unsigned int channel);
};

}  // namespace CapabilitySet
