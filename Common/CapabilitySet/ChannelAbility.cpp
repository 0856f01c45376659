// What a video channel can do: picture, streams, input, pan and tilt.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/ChannelAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet
{

namespace
{

std::string CameraXml(const std::vector<int>& channels)
{
    query::RequestXml xml("CAMERAPARA", "");
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
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetChannelInfoAbility",
                        .growth = query::kStandardAbilityGrowth,
                        .limit = query::LimitReport::TraceAndWhole},
                       [&] {
                           return query::StandardAbilityRequest(userID, 4360,
                                                                static_cast<unsigned int>(channel));
                       });
}

bool ChannelInputAbility::GetChannelInputAbility(ChannelInputAbility& out, unsigned int& err,
                                                 const int userID, const int channel,
                                                 const std::string& /*deviceType*/)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetChannelInputAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 17, query::ChannelXml(kRoot, channel)); });
}

bool VideoPicAbility::GetVideoPicAbility(VideoPicAbility& out, unsigned int& err, const int userID,
                                         const int channel, const std::string& /*deviceType*/)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetVideoPicAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 14, query::ChannelXml(kRoot, channel)); });
}

bool CameraPara::GetCameraParam(CameraPara& out, unsigned int& err, const int userID,
                                const std::vector<int>& channels)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetCameraParam",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] { return query::DeviceAbilityRequest(userID, 9, CameraXml(channels)); });
}

bool AudioVideoCompressInfo::GetAudioVideoCompressInfo(AudioVideoCompressInfo& out,
                                                       unsigned int& err, const int userID,
                                                       const unsigned int audioChannel,
                                                       const unsigned int voiceTalkChannel,
                                                       const unsigned int videoChannel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetAudioVideoCompressInfo",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 8,
                               query::RequestXml(kRoot, "")
                                   .Child("AudioChannelNumber", audioChannel)
                                   .Child("VoiceTalkChannelNumber", voiceTalkChannel)
                                   .Child("VideoChannelNumber", videoChannel)
                                   .Text());
                       });
}

bool CustomStreamCap::GetCustomStreamAbility(CustomStreamCap& out, unsigned int& err,
                                             const int userID, const int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetCustomStreamAbility",
                        .growth = query::kTransparentGrowth,
                        .limitTag = "[kelvar]",
                        .needsFlag = true},
                       [&] {
                           return query::TransparentRequest(
                               userID, "GET /TARN/Streaming/channels/" + std::to_string(channel) +
                                           "/customStream/capabilities\r\n");
                       });
}

bool PTZAbility::GetPTZAbility(PTZAbility& out, unsigned int& err, const int userID,
                               const int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetPTZAbility",
                        .growth = {1024, 1024, 1024000, false, false}},
                       [&] { return query::DeviceAbilityRequest(userID, 17, PtzXml(channel)); });
}

bool FishEyeAbility::GetFishEyeAbility(FishEyeAbility& out, unsigned int& err, const int userID,
                                       const unsigned int channel,
                                       const std::string& /*deviceVersion*/)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        .name = "GetFishEyeAbility",
                        .growth = query::kDeviceAbilityGrowth},
                       [&] {
                           return query::DeviceAbilityRequest(
                               userID, 1792, query::ChannelXml("FishEyeIPCAbility", channel));
                       });
}

}  // namespace CapabilitySet
