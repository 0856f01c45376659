// What a device is as a whole: its system, network services, users, security and clustering.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/SystemAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

bool DeviceCap::GetDeviceCapability(DeviceCap& out, unsigned int& err, const int userID)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetDeviceCapability",
         .growth = query::kTransparentGrowth,
         .limitTag = "[kelvar]",
         .needsFlag = true},
        [&] { return query::TransparentRequest(userID, "GET /TARN/System/capabilities\r\n"); });
}

bool SystemDeviceCap::GetSystemDeviceAbility(SystemDeviceCap& out, unsigned int& err,
                                             const int userID)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetSystemDeviceAbility",
         .growth = {16384, 16384, 16384000, false, false},
         .limitTag = "[kelvar]",
         .needsFlag = true},
        [&] { return query::TransparentRequest(userID, "GET /TARN/System/capabilities\r\n"); });
}

bool ClusterCapability::GetClusterCap(ClusterCapability& out, unsigned int& err, const int userID)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetClusterCap",
                        .growth = query::kTransparentGrowth,
                        .limitTag = "[kelvar]",
                        .needsFlag = true},
                       [&] {
                           return query::TransparentRequest(
                               userID, "GET /TARN/ContentMgmt/Cluster/capabilities\r\n");
                       });
}

bool DiscoveryModeCap::getDiscoveryModeAbility(DiscoveryModeCap& out, unsigned int& err,
                                               const int userID)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "getDiscoveryModeAbility",
                        .growth = query::kTransparentGrowth,
                        .limitTag = "[kelvar]",
                        .needsFlag = true},
                       [&] {
                           // Kept: devices are asked without a line end here.
                           return query::TransparentRequest(
                               userID, "GET /TARN/System/discoveryMode/capabilities");
                       });
}

bool SecurityAbility::GetSecurityAbility(SecurityAbility& out, unsigned int& err, const int userID)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetSecurityAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 17, query::ChannelXml(kRoot, 1)); });
}

bool UserAbility::GetUserAbility(UserAbility& out, unsigned int& err, const int userID,
                                 const std::string& part)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetUserAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 12, query::RequestXml(kRoot).Empty(part).Text());
                       });
}

bool NetAppAbility::GetNetAppAbility(NetAppAbility& out, unsigned int& err, const int userID,
                                     const std::string& application)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetNetAppAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 13, query::RequestXml(kRoot).Empty(application).Text());
                       });
}

}  // namespace CapabilitySet
