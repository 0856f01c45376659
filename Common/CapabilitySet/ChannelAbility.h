// Abilities of a video channel: picture, streams, input, PTZ. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Identity and functions of a channel.
struct CAPABILITYSET_API ChannelInfoAbility : AbilityRecord<ChannelInfoAbility>
{
    static constexpr const char* kRoot = "ChannelInfoAbility";

    using AbilityRecord::AbilityRecord;

    /// Standard ability 4360. `deviceType` is not sent.
    static bool GetChannelInfoAbility(ChannelInfoAbility& out, unsigned int& err, const int userID,
                                      const int channel, const std::string& deviceType);
};

/// Video input settings of a channel.
struct CAPABILITYSET_API ChannelInputAbility : AbilityRecord<ChannelInputAbility>
{
    static constexpr const char* kRoot = "ChannelInputAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, ChannelInputAbility/channelNO. Accepts a negative channel. `deviceType`
    /// is not sent.
    static bool GetChannelInputAbility(ChannelInputAbility& out, unsigned int& err,
                                       const int userID, const int channel,
                                       const std::string& deviceType);
};

/// Overlays, masks and motion areas of a channel's picture.
struct CAPABILITYSET_API VideoPicAbility : AbilityRecord<VideoPicAbility>
{
    static constexpr const char* kRoot = "VideoPicAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 14, VideoPicAbility/channelNO. Accepts a negative channel. `deviceType` is
    /// not sent.
    static bool GetVideoPicAbility(VideoPicAbility& out, unsigned int& err, const int userID,
                                   const int channel, const std::string& deviceType);
};

/// Camera settings: exposure, white balance, day and night.
struct CAPABILITYSET_API CameraPara : AbilityRecord<CameraPara>
{
    static constexpr const char* kRoot = "CameraPara";
    static constexpr const char* kRequestRoot = "CAMERAPARA";

    using AbilityRecord::AbilityRecord;

    /// Device ability 9, CAMERAPARA/ChannelNumber without a version, one child per channel. An
    /// empty list sends one child "0xff": the device as a whole.
    static bool GetCameraParam(CameraPara& out, unsigned int& err, const int userID,
                               const std::vector<int>& channels);
};

/// Audio and video compression.
struct CAPABILITYSET_API AudioVideoCompressInfo : AbilityRecord<AudioVideoCompressInfo>
{
    static constexpr const char* kRoot = "AudioVideoCompressInfo";

    using AbilityRecord::AbilityRecord;

    /// Device ability 8, AudioVideoCompressInfo without a version, with the children
    /// AudioChannelNumber, VoiceTalkChannelNumber (two-way audio) and VideoChannelNumber.
    static bool GetAudioVideoCompressInfo(AudioVideoCompressInfo& out, unsigned int& err,
                                          const int userID, const unsigned int audioChannel,
                                          const unsigned int voiceTalkChannel,
                                          const unsigned int videoChannel);
};

/// Custom streams of a channel.
struct CAPABILITYSET_API CustomStreamCap : AbilityRecord<CustomStreamCap>
{
    static constexpr const char* kRoot = "CustomStreamCap";

    using AbilityRecord::AbilityRecord;

    /// GET /TARN/Streaming/channels/{channel}/customStream/capabilities. `channel` is already the
    /// protocol's number. Error 23 if the answer is not this document.
    static bool GetCustomStreamAbility(CustomStreamCap& out, unsigned int& err, const int userID,
                                       const int channel);
};

/// Pan, tilt, zoom and their automatic functions.
struct CAPABILITYSET_API PTZAbility : AbilityRecord<PTZAbility>
{
    static constexpr const char* kRoot = "PTZAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, PTZAbility/channelNO. A negative channel is sent as "0xff": the device as
    /// a whole. Error 43 above 1,024,000 bytes.
    // Kept: the SDK's 1000 and 1001 are passed on unchanged; only 43 grows the buffer.
    static bool GetPTZAbility(PTZAbility& out, unsigned int& err, const int userID,
                              const int channel);
};

/// Mounting and display modes of a fisheye camera.
struct CAPABILITYSET_API FishEyeAbility : AbilityRecord<FishEyeAbility>
{
    static constexpr const char* kRoot = "FishEyeAbility";
    static constexpr const char* kRequestRoot = "FishEyeIPCAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 1792, FishEyeIPCAbility/channelNO.
    /// `deviceVersion` is not sent.
    static bool GetFishEyeAbility(FishEyeAbility& out, unsigned int& err, const int userID,
                                  const unsigned int channel, const std::string& deviceVersion);
};

}  // namespace CapabilitySet
