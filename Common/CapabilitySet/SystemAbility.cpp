// What a device is as a whole: its system, network services, users, security and clustering.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/SystemAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(DeviceCap);
CAPABILITYSET_ABILITY_RECORD(SystemDeviceCap);
CAPABILITYSET_ABILITY_RECORD(ClusterCapability);
CAPABILITYSET_ABILITY_RECORD(DiscoveryModeCap);
CAPABILITYSET_ABILITY_RECORD(SecurityAbility);
CAPABILITYSET_ABILITY_RECORD(UserAbility);
CAPABILITYSET_ABILITY_RECORD(NetAppAbility);

bool DeviceCap::GetDeviceCapability(DeviceCap& out, unsigned int& err, const int userID)
{
    return query::AskTransparent(out, err, userID, CAPABILITYSET_HERE,
                                 {"GET /TARN/System/capabilities\r\n"});
}

bool SystemDeviceCap::GetSystemDeviceAbility(SystemDeviceCap& out, unsigned int& err,
                                             const int userID)
{
    static constexpr query::Policy kPolicy{.growth = {16384, 16384, 16384000, false, false},
                                           .limitTag = "[kelvar]",
                                           .needsFlag = true};
    return query::AskTransparent(out, err, userID, CAPABILITYSET_HERE,
                                 {"GET /TARN/System/capabilities\r\n"}, kPolicy);
}

bool ClusterCapability::GetClusterCap(ClusterCapability& out, unsigned int& err, const int userID)
{
    return query::AskTransparent(out, err, userID, CAPABILITYSET_HERE,
                                 {"GET /TARN/ContentMgmt/Cluster/capabilities\r\n"});
}

bool DiscoveryModeCap::getDiscoveryModeAbility(DiscoveryModeCap& out, unsigned int& err,
                                               const int userID)
{
    // Kept: this line is sent without a line end.
    return query::AskTransparent(out, err, userID, CAPABILITYSET_HERE,
                                 {"GET /TARN/System/discoveryMode/capabilities"});
}

bool SecurityAbility::GetSecurityAbility(SecurityAbility& out, unsigned int& err, const int userID)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [] { return query::ChannelXml(kRoot, 1); });
}

bool UserAbility::GetUserAbility(UserAbility& out, unsigned int& err, const int userID,
                                 const std::string& part)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 12,
                                   [&] { return query::RequestXml(kRoot).Empty(part).Text(); });
}

bool NetAppAbility::GetNetAppAbility(NetAppAbility& out, unsigned int& err, const int userID,
                                     const std::string& application)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 13, [&] {
        return query::RequestXml(kRoot).Empty(application).Text();
    });
}

}  // namespace CapabilitySet
