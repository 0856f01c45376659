// What a device can decode and show: decoders, video walls, video platforms.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/DisplayAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

bool DecoderAbility::GetDecoderAbility(DecoderAbility& out, unsigned int& err, const int userID)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetDecoderAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 609, query::RequestXml(kRoot).Text()); });
}

bool WallAbility::GetWallAbility(WallAbility& out, unsigned int& err, const int userID,
                                 const unsigned int wall, const unsigned int output)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetWallAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] {
            return query::DeviceAbilityRequest(
                userID, 530,
                query::RequestXml(kRoot).Child("wallNO", wall).Child("channelNO", output).Text());
        });
}

bool VideoPlatformAbility::GetVideoPlatformAbility(VideoPlatformAbility& out, unsigned int& err,
                                                   const int userID, const std::string& part)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetVideoPlatformAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 17, query::RequestXml(kRoot).Empty(part).Text());
                       });
}

bool CodeSubSystemAbility::GetCodeSubSystemAbility(CodeSubSystemAbility& out, unsigned int& err,
                                                   const int userID, const unsigned int channel,
                                                   const std::string& /*deviceType*/)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetCodeSubSystemAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 17, query::ChannelXml("VideoPlatformAbility", channel));
                       });
}

}  // namespace CapabilitySet
