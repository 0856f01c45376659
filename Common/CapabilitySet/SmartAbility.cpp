// What a channel can analyse: smart events, regions, vehicles.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/SmartAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

bool VcaAbility::GetVcaAbility(VcaAbility& out, unsigned int& err, const int userID,
                               const int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetVcaAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 17, query::ChannelXml("VcaChanAbility", channel));
                       });
}

bool SmartCap::GetSmartCapAbility(SmartCap& out, unsigned int& err, const int userID,
                                  const unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetSmartCapAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 3500, channel); });
}

bool RegionExitingCap::GetRegionExitingAbility(RegionExitingCap& out, unsigned int err, int userID,
                                               unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetRegionExitingAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 3511, channel); });
}

bool RegionParkingCap::GetRegionParkingAbility(RegionParkingCap& out, unsigned int err, int userID,
                                               unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetRegionParkingAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 3547, channel); });
}

bool RegionUnBaggageCap::GetRegionUnBaggageAbility(RegionUnBaggageCap& out, unsigned int err,
                                                   int userID, unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetRegionUnBaggageAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 3556, channel); });
}

bool RegionBaggageCap::GetRegionBaggageAbility(RegionBaggageCap& out, unsigned int err, int userID,
                                               unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetRegionBaggageAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] { return query::StandardAbilityRequest(userID, 3565, channel); });
}

bool VehicleInfoResultCap::GetVehicleInfoResultCapAbility(VehicleInfoResultCap& out,
                                                          unsigned int& err, const int userID,
                                                          const int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetVehicleInfoResultCapAbility",
                        .growth = query::kStandardAbilityGrowth},
                       [&] {
                           return query::StandardAbilityRequest(userID, 3951,
                                                                static_cast<unsigned int>(channel));
                       });
}

}  // namespace CapabilitySet
