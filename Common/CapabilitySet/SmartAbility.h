// What a channel can analyse: smart events, regions, vehicles.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Video content analysis of a channel.
struct CAPABILITYSET_API VcaAbility : AbilityRecord<VcaAbility>
{
    static constexpr const char* kRoot = "VcaAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for none in particular when it is negative.
    static bool GetVcaAbility(VcaAbility& out, unsigned int& err, const int userID,
                              const int channel);
};

/// Smart events of a channel.
struct CAPABILITYSET_API SmartCap : AbilityRecord<SmartCap>
{
    static constexpr const char* kRoot = "SmartCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel.
    static bool GetSmartCapAbility(SmartCap& out, unsigned int& err, const int userID,
                                   const unsigned int channel);
};

/// Detection of someone leaving a region.
struct CAPABILITYSET_API RegionExitingCap : AbilityRecord<RegionExitingCap>
{
    static constexpr const char* kRoot = "RegionExitingCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel. Clients pass the error slot by value, so they learn of a failure from
    /// the result and Keel::Error::GetLastError() alone.
    static bool GetRegionExitingAbility(RegionExitingCap& out, unsigned int err, int userID,
                                        unsigned int channel);
};

/// Detection of parking in a region.
struct CAPABILITYSET_API RegionParkingCap : AbilityRecord<RegionParkingCap>
{
    static constexpr const char* kRoot = "RegionParkingCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel. Clients pass the error slot by value, so they learn of a failure from
    /// the result and Keel::Error::GetLastError() alone.
    static bool GetRegionParkingAbility(RegionParkingCap& out, unsigned int err, int userID,
                                        unsigned int channel);
};

/// Detection of unattended baggage in a region.
struct CAPABILITYSET_API RegionUnBaggageCap : AbilityRecord<RegionUnBaggageCap>
{
    static constexpr const char* kRoot = "RegionUnBaggageCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel. Clients pass the error slot by value, so they learn of a failure from
    /// the result and Keel::Error::GetLastError() alone.
    static bool GetRegionUnBaggageAbility(RegionUnBaggageCap& out, unsigned int err, int userID,
                                          unsigned int channel);
};

/// Detection of baggage removed from a region.
struct CAPABILITYSET_API RegionBaggageCap : AbilityRecord<RegionBaggageCap>
{
    static constexpr const char* kRoot = "RegionBaggageCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel. Clients pass the error slot by value, so they learn of a failure from
    /// the result and Keel::Error::GetLastError() alone.
    static bool GetRegionBaggageAbility(RegionBaggageCap& out, unsigned int err, int userID,
                                        unsigned int channel);
};

/// What is told of a recognised vehicle.
struct CAPABILITYSET_API VehicleInfoResultCap : AbilityRecord<VehicleInfoResultCap>
{
    static constexpr const char* kRoot = "VehicleInfoResultCap";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel.
    static bool GetVehicleInfoResultCapAbility(VehicleInfoResultCap& out, unsigned int& err,
                                               const int userID, const int channel);
};

}  // namespace CapabilitySet
