// What a channel can do in its present mode of operation.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Functions that depend on how a channel is set up.
struct CAPABILITYSET_API DynChannelAbility : AbilityRecord<DynChannelAbility>
{
    static constexpr const char* kRoot = "DynChannelAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for none in particular when it is negative.
    static bool GetDynChannelAbility(DynChannelAbility& out, unsigned int& err, const int userID,
                                     const int channel);
};

}  // namespace CapabilitySet
