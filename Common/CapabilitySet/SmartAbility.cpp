// What a channel can analyse: smart events, regions, vehicles.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/SmartAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(VcaAbility);
CAPABILITYSET_ABILITY_RECORD(SmartCap);
CAPABILITYSET_ABILITY_RECORD(RegionExitingCap);
CAPABILITYSET_ABILITY_RECORD(RegionParkingCap);
CAPABILITYSET_ABILITY_RECORD(RegionUnBaggageCap);
CAPABILITYSET_ABILITY_RECORD(RegionBaggageCap);
CAPABILITYSET_ABILITY_RECORD(VehicleInfoResultCap);

bool VcaAbility::GetVcaAbility(VcaAbility& out, unsigned int& err, const int userID,
                               const int channel)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [&] { return query::ChannelXml(kRequestRoot, channel); });
}

bool SmartCap::GetSmartCapAbility(SmartCap& out, unsigned int& err, const int userID,
                                  const unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3500, channel);
}

bool RegionExitingCap::GetRegionExitingAbility(RegionExitingCap& out, unsigned int err, int userID,
                                               unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3511, channel);
}

bool RegionParkingCap::GetRegionParkingAbility(RegionParkingCap& out, unsigned int err, int userID,
                                               unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3547, channel);
}

bool RegionUnBaggageCap::GetRegionUnBaggageAbility(RegionUnBaggageCap& out, unsigned int err,
                                                   int userID, unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3556, channel);
}

bool RegionBaggageCap::GetRegionBaggageAbility(RegionBaggageCap& out, unsigned int err, int userID,
                                               unsigned int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3565, channel);
}

bool VehicleInfoResultCap::GetVehicleInfoResultCapAbility(VehicleInfoResultCap& out,
                                                          unsigned int& err, const int userID,
                                                          const int channel)
{
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3951,
                                     static_cast<unsigned int>(channel));
}

}  // namespace CapabilitySet
