// Abilities of a whole device: system, network, users, security. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// System functions of a device.
struct CAPABILITYSET_API DeviceCap : AbilityRecord<DeviceCap>
{
    static constexpr const char* kRoot = "DeviceCap";

    using AbilityRecord::AbilityRecord;

    /// GET /TARN/System/capabilities. Error 23 if the answer is not this document.
    static bool GetDeviceCapability(DeviceCap& out, unsigned int& err, const int userID);
};

/// System functions of a device, as the system pages of a client read them.
struct CAPABILITYSET_API SystemDeviceCap : AbilityRecord<SystemDeviceCap>
{
    // Kept: both records of the system capabilities are read from the same document.
    static constexpr const char* kRoot = "DeviceCap";

    using AbilityRecord::AbilityRecord;

    /// GET /TARN/System/capabilities. Error 23 if the answer is not this document.
    // Kept: the SDK's 1000 and 1001 are passed on unchanged; only 43 grows the buffer.
    static bool GetSystemDeviceAbility(SystemDeviceCap& out, unsigned int& err, const int userID);
};

/// Storage clustering.
struct CAPABILITYSET_API ClusterCapability : AbilityRecord<ClusterCapability>
{
    static constexpr const char* kRoot = "ClusterCapability";

    using AbilityRecord::AbilityRecord;

    /// GET /TARN/ContentMgmt/Cluster/capabilities. Error 23 if the answer is not this document.
    static bool GetClusterCap(ClusterCapability& out, unsigned int& err, const int userID);
};

/// Protocols by which a device can be discovered on a network.
struct CAPABILITYSET_API DiscoveryModeCap : AbilityRecord<DiscoveryModeCap>
{
    static constexpr const char* kRoot = "DiscoveryModeCap";

    using AbilityRecord::AbilityRecord;

    /// GET /TARN/System/discoveryMode/capabilities. Error 23 if the answer is not this document.
    // Kept: the line is sent without CR LF.
    static bool getDiscoveryModeAbility(DiscoveryModeCap& out, unsigned int& err, const int userID);
};

/// Login and certificate security.
struct CAPABILITYSET_API SecurityAbility : AbilityRecord<SecurityAbility>
{
    static constexpr const char* kRoot = "SecurityAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, SecurityAbility/channelNO, always with channel 1.
    static bool GetSecurityAbility(SecurityAbility& out, unsigned int& err, const int userID);
};

/// User management.
struct CAPABILITYSET_API UserAbility : AbilityRecord<UserAbility>
{
    static constexpr const char* kRoot = "UserAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 12, UserAbility/{part}, an empty element. Without a part, all are asked for.
    static bool GetUserAbility(UserAbility& out, unsigned int& err, const int userID,
                               const std::string& part);
};

/// Network applications: time, mail, dynamic DNS, platform access.
struct CAPABILITYSET_API NetAppAbility : AbilityRecord<NetAppAbility>
{
    static constexpr const char* kRoot = "NetAppAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 13, NetAppAbility/{application}, an empty element. Without an application,
    /// all are asked for.
    static bool GetNetAppAbility(NetAppAbility& out, unsigned int& err, const int userID,
                                 const std::string& application);
};

}  // namespace CapabilitySet
