// What a video channel can do: picture, streams, input, pan and tilt.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/ChannelAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_ABILITY_RECORD(ChannelInfoAbility);
CAPABILITYSET_ABILITY_RECORD(ChannelInputAbility);
CAPABILITYSET_ABILITY_RECORD(VideoPicAbility);
CAPABILITYSET_ABILITY_RECORD(CameraPara);
CAPABILITYSET_ABILITY_RECORD(AudioVideoCompressInfo);
CAPABILITYSET_ABILITY_RECORD(CustomStreamCap);
CAPABILITYSET_ABILITY_RECORD(PTZAbility);
CAPABILITYSET_ABILITY_RECORD(FishEyeAbility);

namespace
{

std::string CameraXml(const std::vector<int>& channels)
{
    query::RequestXml xml(CameraPara::kRequestRoot, "");
    for (const int channel : channels) {
        xml.Child("ChannelNumber", channel);
    }
    if (channels.empty()) {
        xml.Child("ChannelNumber", query::kNoChannel);
    }
    return xml.Text();
}

std::string PtzXml(int channel)
{
    if (channel >= 0) {
        return query::ChannelXml(PTZAbility::kRoot, channel);
    }
    return query::RequestXml(PTZAbility::kRoot).Child("channelNO", query::kNoChannel).Text();
}

}  // namespace

bool ChannelInfoAbility::GetChannelInfoAbility(ChannelInfoAbility& out, unsigned int& err,
                                               const int userID, const int channel,
                                               const std::string& /*deviceType*/)
{
    static constexpr query::Policy kPolicy{.growth = query::kStandardAbility.growth,
                                           .limit = query::LimitReport::TraceAndFullLine};
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 4360,
                                     static_cast<unsigned int>(channel), kPolicy);
}

bool ChannelInputAbility::GetChannelInputAbility(ChannelInputAbility& out, unsigned int& err,
                                                 const int userID, const int channel,
                                                 const std::string& /*deviceType*/)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 17,
                                   [&] { return query::ChannelXml(kRoot, channel); });
}

bool VideoPicAbility::GetVideoPicAbility(VideoPicAbility& out, unsigned int& err, const int userID,
                                         const int channel, const std::string& /*deviceType*/)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 14,
                                   [&] { return query::ChannelXml(kRoot, channel); });
}

bool CameraPara::GetCameraParam(CameraPara& out, unsigned int& err, const int userID,
                                const std::vector<int>& channels)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 9,
                                   [&] { return CameraXml(channels); });
}

bool AudioVideoCompressInfo::GetAudioVideoCompressInfo(AudioVideoCompressInfo& out,
                                                       unsigned int& err, const int userID,
                                                       const unsigned int audioChannel,
                                                       const unsigned int voiceTalkChannel,
                                                       const unsigned int videoChannel)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 8, [&] {
        return query::RequestXml(kRoot, "")
            .Child("AudioChannelNumber", audioChannel)
            .Child("VoiceTalkChannelNumber", voiceTalkChannel)
            .Child("VideoChannelNumber", videoChannel)
            .Text();
    });
}

bool CustomStreamCap::GetCustomStreamAbility(CustomStreamCap& out, unsigned int& err,
                                             const int userID, const int channel)
{
    return query::AskTransparent(
        out, err, userID, CAPABILITYSET_HERE,
        {"GET /TARN/Streaming/channels/", channel, "/customStream/capabilities\r\n"});
}

bool PTZAbility::GetPTZAbility(PTZAbility& out, unsigned int& err, const int userID,
                               const int channel)
{
    static constexpr query::Policy kPolicy{.growth = {1024, 1024, 1024000, false, false}};
    return query::AskDeviceAbility(
        out, err, userID, CAPABILITYSET_HERE, 17, [&] { return PtzXml(channel); }, kPolicy);
}

bool FishEyeAbility::GetFishEyeAbility(FishEyeAbility& out, unsigned int& err, const int userID,
                                       const unsigned int channel,
                                       const std::string& /*deviceVersion*/)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 1792,
                                   [&] { return query::ChannelXml(kRequestRoot, channel); });
}

}  // namespace CapabilitySet
