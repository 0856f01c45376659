// The rows of the capability records: device abilities, standard abilities, system capabilities.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/AlarmHostAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/IntercomAbility.h"
#include "CapabilitySet/RecordAbility.h"
#include "CapabilitySet/SmartAbility.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/ThermalAbility.h"
#include "Tool/record/Records.h"

namespace Tool
{

using namespace CapabilitySet;

namespace
{

std::vector<RecordEntry> DeviceRows()
{
    return {
        XmlRow("BasicCapability", "hardware, ports and software functions",
               &BasicCapability::GetBasicCapability),
        XmlRow("DeviceCap", "system functions", &DeviceCap::GetDeviceCapability),
        XmlRow("SystemDeviceCap", "system functions, as system pages read them",
               &SystemDeviceCap::GetSystemDeviceAbility),
        XmlRow("ClusterCapability", "storage clustering", &ClusterCapability::GetClusterCap),
        XmlRow("DiscoveryModeCap", "ways in which the device can be discovered",
               &DiscoveryModeCap::getDiscoveryModeAbility),
        XmlRow("SecurityAbility", "login and certificate security",
               &SecurityAbility::GetSecurityAbility),
        XmlRow("UserAbility", "user management", &UserAbility::GetUserAbility, kPart),
        XmlRow("NetAppAbility", "time, mail, dynamic names, platform access",
               &NetAppAbility::GetNetAppAbility, kPart),
        XmlRow("RecordAbility", "recording: schedules, modes, streams, redundancy",
               &RecordAbility::GetRecordAbility),
        XmlRow("CVRAbility", "direct recording to central storage", &CVRAbility::GetCVRAbility),
        XmlRow("DecoderAbility", "decoding channels and display outputs",
               &DecoderAbility::GetDecoderAbility),
        XmlRow("WallAbility", "windows, layouts and scenes of a video wall",
               &WallAbility::GetWallAbility, kWall, kOutput),
        XmlRow("VideoPlatformAbility", "subsystems of a video platform",
               &VideoPlatformAbility::GetVideoPlatformAbility, kPart),
        XmlRow("CodeSubSystemAbility", "encoding subsystem of a video platform",
               &CodeSubSystemAbility::GetCodeSubSystemAbility, kChannel, kUnsentText),
        XmlRow("AlarmHostAbility", "zones, outputs and sirens of an alarm host",
               &AlarmHostAbility::GetAlarmHostAbility, kExtended),
    };
}

std::vector<RecordEntry> ChannelRows()
{
    return {
        XmlRow("ChannelInfoAbility", "identity and functions of a channel",
               &ChannelInfoAbility::GetChannelInfoAbility, kChannel, kUnsentText),
        XmlRow("ChannelInputAbility", "video input settings",
               &ChannelInputAbility::GetChannelInputAbility, kChannel, kUnsentText),
        XmlRow("DynChannelAbility", "functions that depend on a channel's setup",
               &DynChannelAbility::GetDynChannelAbility, kChannel),
        XmlRow("VideoPicAbility", "overlays, masks and motion areas of the picture",
               &VideoPicAbility::GetVideoPicAbility, kChannel, kUnsentText),
        XmlRow("CameraPara", "exposure, white balance, day and night", &CameraPara::GetCameraParam,
               kChannels),
        XmlRow("AudioVideoCompressInfo", "audio and video compression",
               &AudioVideoCompressInfo::GetAudioVideoCompressInfo, kAudioChannel, kTalkChannel,
               kChannel),
        XmlRow("CustomStreamCap", "custom streams", &CustomStreamCap::GetCustomStreamAbility,
               kChannel),
        XmlRow("PTZAbility", "pan, tilt, zoom and their automations", &PTZAbility::GetPTZAbility,
               kChannel),
        XmlRow("FishEyeAbility", "mounting and display modes of a fisheye camera",
               &FishEyeAbility::GetFishEyeAbility, kChannel, kUnsentText),
        XmlRow("ThermalCap", "thermal functions", &ThermalCap::GetThermalCapability, kChannel),
        XmlRow("ManualThermometryCap", "temperature measurement by hand",
               &ManualThermometryCap::GetManualThermometryAbility, kChannel),
    };
}

std::vector<RecordEntry> EventRows()
{
    return {
        XmlRow("AlarmAbility", "alarm functions of a channel", &AlarmAbility::GetAlarmAbility,
               kChannel),
        XmlRow("AlarmForHelpAbility", "emergency help calls",
               &AlarmForHelpAbility::GetAlarmForHelpAbility, kChannel),
        XmlRow("EventAbility", "events, their thresholds and the reactions to them",
               &EventAbility::GetEventAbility, kChannel),
        XmlRow("EventTriggerCap", "trigger kinds and the reactions they allow",
               &EventTriggerCap::GetEventTriggerCapAbility, kChannel),
        XmlRow("VcaAbility", "video content analysis", &VcaAbility::GetVcaAbility, kChannel),
        XmlRow("SmartCap", "smart events", &SmartCap::GetSmartCapAbility, kChannel),
        XmlRow("RegionExitingCap", "detection of someone leaving a region",
               &RegionExitingCap::GetRegionExitingAbility, kChannel),
        XmlRow("RegionParkingCap", "detection of parking in a region",
               &RegionParkingCap::GetRegionParkingAbility, kChannel),
        XmlRow("RegionUnBaggageCap", "detection of unattended baggage",
               &RegionUnBaggageCap::GetRegionUnBaggageAbility, kChannel),
        XmlRow("RegionBaggageCap", "detection of removed baggage",
               &RegionBaggageCap::GetRegionBaggageAbility, kChannel),
        XmlRow("VehicleInfoResultCap", "what is told of a recognised vehicle",
               &VehicleInfoResultCap::GetVehicleInfoResultCapAbility, kChannel),
        XmlRow("IntercomNoticeVideoAbility", "notices and videos of an intercom station",
               &IntercomNoticeVideoAbility::GetNoticeVideoCapability, kChannel),
        XmlRow("IntercomDeviceIpViewAbility", "cameras that an intercom station can view",
               &IntercomDeviceIpViewAbility::GetIntercomDeviceIpViewAbility, kChannel),
    };
}

}  // namespace

std::vector<RecordEntry> AbilityRows()
{
    std::vector<RecordEntry> rows;
    for (auto&& group : {DeviceRows(), ChannelRows(), EventRows()}) {
        rows.insert(rows.end(), group.begin(), group.end());
    }
    return rows;
}

}  // namespace Tool
