// The capability records of devices and channels.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/AlarmHostAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/RecordAbility.h"
#include "CapabilitySet/SerialAbility.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/ThermalAbility.h"
#include "Catalog/Rows.h"

namespace CapabilitySet::catalog
{

template <class Row>
void AbilityRows(Row&& row)
{
    row("BasicCapability", "hardware, ports and software functions",
        &BasicCapability::GetBasicCapability);
    row("DeviceCap", "system functions", &DeviceCap::GetDeviceCapability);
    row("SystemDeviceCap", "system functions, as system pages read them",
        &SystemDeviceCap::GetSystemDeviceAbility);
    row("ClusterCapability", "storage clustering", &ClusterCapability::GetClusterCap);
    row("DiscoveryModeCap", "ways in which the device can be discovered",
        &DiscoveryModeCap::getDiscoveryModeAbility);
    row("SecurityAbility", "login and certificate security", &SecurityAbility::GetSecurityAbility);
    row("UserAbility", "user management", &UserAbility::GetUserAbility, kPart);
    row("NetAppAbility", "time, mail, dynamic names, platform access",
        &NetAppAbility::GetNetAppAbility, kPart);
    row("RecordAbility", "recording: schedules, modes, streams, redundancy",
        &RecordAbility::GetRecordAbility);
    row("CVRAbility", "direct recording to central storage", &CVRAbility::GetCVRAbility);
    row("DecoderAbility", "decoding channels and display outputs",
        &DecoderAbility::GetDecoderAbility);
    row("WallAbility", "windows, layouts and scenes of a video wall", &WallAbility::GetWallAbility,
        kWall, kOutput);
    row("VideoPlatformAbility", "subsystems of a video platform",
        &VideoPlatformAbility::GetVideoPlatformAbility, kPart);
    row("CodeSubSystemAbility", "encoding subsystem of a video platform",
        &CodeSubSystemAbility::GetCodeSubSystemAbility, kChannel, kUnsentText);
    row("AlarmHostAbility", "zones, outputs and sirens of an alarm host",
        &AlarmHostAbility::GetAlarmHostAbility, kExtended);
    row("ChannelInfoAbility", "identity and functions of a channel",
        &ChannelInfoAbility::GetChannelInfoAbility, kChannel, kUnsentText);
    row("ChannelInputAbility", "video input settings", &ChannelInputAbility::GetChannelInputAbility,
        kChannel, kUnsentText);
    row("DynChannelAbility", "functions that depend on a channel's setup",
        &DynChannelAbility::GetDynChannelAbility, kChannel);
    row("VideoPicAbility", "overlays, masks and motion areas of the picture",
        &VideoPicAbility::GetVideoPicAbility, kChannel, kUnsentText);
    row("CameraPara", "exposure, white balance, day and night", &CameraPara::GetCameraParam,
        kChannels);
    row("AudioVideoCompressInfo", "audio and video compression",
        &AudioVideoCompressInfo::GetAudioVideoCompressInfo, kAudioChannel, kTalkChannel, kChannel);
    row("CustomStreamCap", "custom streams", &CustomStreamCap::GetCustomStreamAbility, kChannel);
    row("PTZAbility", "pan, tilt, zoom and their automations", &PTZAbility::GetPTZAbility,
        kChannel);
    row("FishEyeAbility", "mounting and display modes of a fisheye camera",
        &FishEyeAbility::GetFishEyeAbility, kChannel, kUnsentText);
    row("ThermalCap", "thermal functions", &ThermalCap::GetThermalCapability, kChannel);
    row("ManualThermometryCap", "temperature measurement by hand",
        &ManualThermometryCap::GetManualThermometryAbility, kChannel);
    row("SerialAbility", "serial ports", parsed<SerialAbility>);
}

}  // namespace CapabilitySet::catalog
