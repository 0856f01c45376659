// What a device is as a whole: its system, network services, users, security and clustering.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// System functions of a device.
struct CAPABILITYSET_API DeviceCap : AbilityRecord<DeviceCap>
{
    static constexpr const char* kRoot = "DeviceCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for the system capabilities. An answer that is no such document is
    /// error 23.
    static bool GetDeviceCapability(DeviceCap& out, unsigned int& err, const int userID);
};

/// System functions of a device, as the system pages of a client read them.
struct CAPABILITYSET_API SystemDeviceCap : AbilityRecord<SystemDeviceCap>
{
    // Kept: both records of the system capabilities are read from the same document.
    static constexpr const char* kRoot = "DeviceCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for the system capabilities. Error 1001 does not grow the buffer, and 1000 stays 1000.
    /// An answer that is no such document is error 23.
    static bool GetSystemDeviceAbility(SystemDeviceCap& out, unsigned int& err, const int userID);
};

/// Storage clustering.
struct CAPABILITYSET_API ClusterCapability : AbilityRecord<ClusterCapability>
{
    static constexpr const char* kRoot = "ClusterCapability";

    using AbilityRecord::AbilityRecord;

    /// Asks for the clustering capabilities. An answer that is no such document is
    /// error 23.
    static bool GetClusterCap(ClusterCapability& out, unsigned int& err, const int userID);
};

/// The ways in which a device can be discovered on a network.
struct CAPABILITYSET_API DiscoveryModeCap : AbilityRecord<DiscoveryModeCap>
{
    static constexpr const char* kRoot = "DiscoveryModeCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for the discovery modes. An answer that is no such document is
    /// error 23.
    static bool getDiscoveryModeAbility(DiscoveryModeCap& out, unsigned int& err, const int userID);
};

/// Login and certificate security.
struct CAPABILITYSET_API SecurityAbility : AbilityRecord<SecurityAbility>
{
    static constexpr const char* kRoot = "SecurityAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for the security functions; devices expect channel 1.
    static bool GetSecurityAbility(SecurityAbility& out, unsigned int& err, const int userID);
};

/// User management.
struct CAPABILITYSET_API UserAbility : AbilityRecord<UserAbility>
{
    static constexpr const char* kRoot = "UserAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for one part of user management by its element name; an empty one asks for all.
    static bool GetUserAbility(UserAbility& out, unsigned int& err, const int userID,
                               const std::string& part);
};

/// Network applications: time, mail, dynamic names, platform access.
struct CAPABILITYSET_API NetAppAbility : AbilityRecord<NetAppAbility>
{
    static constexpr const char* kRoot = "NetAppAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for one application by its element name; an empty one asks for all.
    static bool GetNetAppAbility(NetAppAbility& out, unsigned int& err, const int userID,
                                 const std::string& application);
};

}  // namespace CapabilitySet
