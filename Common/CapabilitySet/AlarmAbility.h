// What a device's wireless and call-for-help alarms can do.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Alarm functions of a channel.
struct CAPABILITYSET_API AlarmAbility : AbilityRecord<AlarmAbility>
{
    static constexpr const char* kRoot = "AlarmAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel by the SDK's number. A channel that the SDK cannot convert is a failure
    /// before anything is sent.
    static bool GetAlarmAbility(AlarmAbility& out, unsigned int& err, const int userID,
                                const unsigned int channel);
};

}  // namespace CapabilitySet
