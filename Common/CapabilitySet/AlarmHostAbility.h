// Abilities of an alarm host and of emergency calls. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Subsystems, zones, outputs and sirens of an alarm host.
struct CAPABILITYSET_API AlarmHostAbility : AbilityRecord<AlarmHostAbility>
{
    static constexpr const char* kRoot = "AlarmHostAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, AlarmHostAbility. `extended` is not
    /// sent.
    static bool GetAlarmHostAbility(AlarmHostAbility& out, unsigned int& err, const int userID,
                                    bool extended);
};

/// Emergency calls of a channel.
struct CAPABILITYSET_API AlarmForHelpAbility : AbilityRecord<AlarmForHelpAbility>
{
    static constexpr const char* kRoot = "AlarmForHelpAbility";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 2222.
    // Kept: `err` is taken by value.
    static bool GetAlarmForHelpAbility(AlarmForHelpAbility& out, unsigned int err, int userID,
                                       unsigned int channel);
};

}  // namespace CapabilitySet
