// What a video channel can do: picture, streams, input, pan and tilt.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Identity and functions of a channel.
struct CAPABILITYSET_API ChannelInfoAbility : AbilityRecord<ChannelInfoAbility>
{
    static constexpr const char* kRoot = "ChannelInfoAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel; the device type is not sent.
    static bool GetChannelInfoAbility(ChannelInfoAbility& out, unsigned int& err, const int userID,
                                      const int channel, const std::string& deviceType);
};

/// Video input settings of a channel.
struct CAPABILITYSET_API ChannelInputAbility : AbilityRecord<ChannelInputAbility>
{
    static constexpr const char* kRoot = "ChannelInputAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for none in particular when it is negative; the device type is not
    /// sent.
    static bool GetChannelInputAbility(ChannelInputAbility& out, unsigned int& err,
                                       const int userID, const int channel,
                                       const std::string& deviceType);
};

/// Overlays, masks and motion areas of a channel's picture.
struct CAPABILITYSET_API VideoPicAbility : AbilityRecord<VideoPicAbility>
{
    static constexpr const char* kRoot = "VideoPicAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for none in particular when it is negative; the device type is not
    /// sent.
    static bool GetVideoPicAbility(VideoPicAbility& out, unsigned int& err, const int userID,
                                   const int channel, const std::string& deviceType);
};

/// Camera front-end settings: exposure, white balance, day and night.
struct CAPABILITYSET_API CameraPara : AbilityRecord<CameraPara>
{
    static constexpr const char* kRoot = "CameraPara";

    using AbilityRecord::AbilityRecord;

    /// Asks for several channels at once; an empty list asks for the device as a whole.
    static bool GetCameraParam(CameraPara& out, unsigned int& err, const int userID,
                               const std::vector<int>& channels);
};

/// Audio and video compression.
struct CAPABILITYSET_API AudioVideoCompressInfo : AbilityRecord<AudioVideoCompressInfo>
{
    static constexpr const char* kRoot = "AudioVideoCompressInfo";

    using AbilityRecord::AbilityRecord;

    /// Asks for an audio, a two-way audio and a video channel.
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

    /// Asks for a channel by the protocol's number. An answer that is no such document is
    /// error 23.
    static bool GetCustomStreamAbility(CustomStreamCap& out, unsigned int& err, const int userID,
                                       const int channel);
};

/// Pan, tilt, zoom and their automations.
struct CAPABILITYSET_API PTZAbility : AbilityRecord<PTZAbility>
{
    static constexpr const char* kRoot = "PTZAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel, or for the device as a whole when it is negative. Error 1001 does not
    /// grow the buffer, and 1000 stays 1000.
    static bool GetPTZAbility(PTZAbility& out, unsigned int& err, const int userID,
                              const int channel);
};

/// Mounting and display modes of a fisheye camera.
struct CAPABILITYSET_API FishEyeAbility : AbilityRecord<FishEyeAbility>
{
    static constexpr const char* kRoot = "FishEyeAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel; the device version is not sent.
    static bool GetFishEyeAbility(FishEyeAbility& out, unsigned int& err, const int userID,
                                  const unsigned int channel, const std::string& deviceVersion);
};

}  // namespace CapabilitySet
