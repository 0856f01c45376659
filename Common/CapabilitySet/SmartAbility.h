// Analysis abilities of a channel: events, regions, vehicles. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Video content analysis of a channel.
struct CAPABILITYSET_API VcaAbility : AbilityRecord<VcaAbility>
{
    static constexpr const char* kRoot = "VcaAbility";
    static constexpr const char* kRequestRoot = "VcaChanAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, VcaChanAbility/channelNO. Accepts a negative channel.
    static bool GetVcaAbility(VcaAbility& out, unsigned int& err, const int userID,
                              const int channel);
};

/// Smart events of a channel.
struct CAPABILITYSET_API SmartCap : AbilityRecord<SmartCap>
{
    static constexpr const char* kRoot = "SmartCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3500.
    static bool GetSmartCapAbility(SmartCap& out, unsigned int& err, const int userID,
                                   const unsigned int channel);
};

/// Detection of targets leaving a region.
struct CAPABILITYSET_API RegionExitingCap : AbilityRecord<RegionExitingCap>
{
    static constexpr const char* kRoot = "RegionExitingCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3511.
    // Kept: `err` is taken by value, here and in the three queries below.
    static bool GetRegionExitingAbility(RegionExitingCap& out, unsigned int err, int userID,
                                        unsigned int channel);
};

/// Detection of parking in a region.
struct CAPABILITYSET_API RegionParkingCap : AbilityRecord<RegionParkingCap>
{
    static constexpr const char* kRoot = "RegionParkingCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3547.
    static bool GetRegionParkingAbility(RegionParkingCap& out, unsigned int err, int userID,
                                        unsigned int channel);
};

/// Detection of unattended baggage in a region.
struct CAPABILITYSET_API RegionUnBaggageCap : AbilityRecord<RegionUnBaggageCap>
{
    static constexpr const char* kRoot = "RegionUnBaggageCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3556.
    static bool GetRegionUnBaggageAbility(RegionUnBaggageCap& out, unsigned int err, int userID,
                                          unsigned int channel);
};

/// Detection of baggage removed from a region.
struct CAPABILITYSET_API RegionBaggageCap : AbilityRecord<RegionBaggageCap>
{
    static constexpr const char* kRoot = "RegionBaggageCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3565.
    static bool GetRegionBaggageAbility(RegionBaggageCap& out, unsigned int err, int userID,
                                        unsigned int channel);
};

/// What is reported about a recognised vehicle.
struct CAPABILITYSET_API VehicleInfoResultCap : AbilityRecord<VehicleInfoResultCap>
{
    static constexpr const char* kRoot = "VehicleInfoResultCap";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 3951.
    static bool GetVehicleInfoResultCapAbility(VehicleInfoResultCap& out, unsigned int& err,
                                               const int userID, const int channel);
};

}  // namespace CapabilitySet
