// What a video intercom station can do.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Notices and videos shown on a station.
struct CAPABILITYSET_API IntercomNoticeVideoAbility : AbilityRecord<IntercomNoticeVideoAbility>
{
    static constexpr const char* kRoot = "IntercomNoticeVideoAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for the station as a whole when it is negative.
    static bool GetNoticeVideoCapability(IntercomNoticeVideoAbility& out, unsigned int& err,
                                         const int userID, int channel);
};

/// Cameras that a station can view.
struct CAPABILITYSET_API IntercomDeviceIpViewAbility : AbilityRecord<IntercomDeviceIpViewAbility>
{
    static constexpr const char* kRoot = "IntercomDeviceIpViewAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for the station as a whole when it is negative.
    static bool GetIntercomDeviceIpViewAbility(IntercomDeviceIpViewAbility& out, unsigned int& err,
                                               const int userID, int channel);
};

}  // namespace CapabilitySet
