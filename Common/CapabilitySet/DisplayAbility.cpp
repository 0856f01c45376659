// What a device can decode and show: decoders, video walls, video platforms.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/DisplayAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(DecoderAbility);
CAPABILITYSET_ABILITY_RECORD(WallAbility);
CAPABILITYSET_ABILITY_RECORD(VideoPlatformAbility);
CAPABILITYSET_ABILITY_RECORD(CodeSubSystemAbility);

bool DecoderAbility::GetDecoderAbility(DecoderAbility& out, unsigned int& err, const int userID)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 609,
                                   [] { return query::RequestXml(kRoot).Text(); });
}

bool WallAbility::GetWallAbility(WallAbility& out, unsigned int& err, const int userID,
                                 const unsigned int wall, const unsigned int output)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 530, [&] {
        return query::RequestXml(kRoot).Child("wallNO", wall).Child("channelNO", output).Text();
    });
}

bool VideoPlatformAbility::GetVideoPlatformAbility(VideoPlatformAbility& out, unsigned int& err,
                                                   const int userID, const std::string& part)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [&] { return query::RequestXml(kRoot).Empty(part).Text(); });
}

bool CodeSubSystemAbility::GetCodeSubSystemAbility(CodeSubSystemAbility& out, unsigned int& err,
                                                   const int userID, const unsigned int channel,
                                                   const std::string& /*deviceType*/)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [&] { return query::ChannelXml(kRequestRoot, channel); });
}

}  // namespace CapabilitySet
