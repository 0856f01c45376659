// Abilities of a video intercom station. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Notices and videos shown on a station.
struct CAPABILITYSET_API IntercomNoticeVideoAbility : AbilityRecord<IntercomNoticeVideoAbility>
{
    static constexpr const char* kRoot = "IntercomNoticeVideoAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 20, IntercomNoticeVideoAbility/channelNO. Accepts a negative channel.
    static bool GetNoticeVideoCapability(IntercomNoticeVideoAbility& out, unsigned int& err,
                                         const int userID, int channel);
};

/// Cameras that a station can view.
struct CAPABILITYSET_API IntercomDeviceIpViewAbility : AbilityRecord<IntercomDeviceIpViewAbility>
{
    static constexpr const char* kRoot = "IntercomDeviceIpViewAbility";
    static constexpr const char* kRequestRoot = "IpViewDevAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 20, IpViewDevAbility/channelNO. Accepts a negative channel.
    static bool GetIntercomDeviceIpViewAbility(IntercomDeviceIpViewAbility& out, unsigned int& err,
                                               const int userID, int channel);
};

}  // namespace CapabilitySet
