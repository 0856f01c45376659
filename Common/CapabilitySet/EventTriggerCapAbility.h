// Which reactions each kind of event may start.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Trigger kinds and the reactions they allow.
struct CAPABILITYSET_API EventTriggerCap : AbilityRecord<EventTriggerCap>
{
    static constexpr const char* kRoot = "EventTriggersCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel. Clients pass the error slot by value, so they learn of a failure from
    /// the result and Keel::Error::GetLastError() alone.
    static bool GetEventTriggerCapAbility(EventTriggerCap& out, unsigned int err, int userID,
                                          unsigned int channel);
};

}  // namespace CapabilitySet
