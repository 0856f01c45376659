// Every record that holds a device's whole answer as a tree, in one list of types.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/AlarmHostAbility.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/IntercomAbility.h"
#include "CapabilitySet/RecordAbility.h"
#include "CapabilitySet/SerialAbility.h"
#include "CapabilitySet/SmartAbility.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/ThermalAbility.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"
#include "support/RecordTypes.h"

namespace TestSupport
{

using AbilityRecords = RecordTypes<
    CapabilitySet::AlarmHostAbility, CapabilitySet::AlarmForHelpAbility,
    //
    CapabilitySet::ChannelInfoAbility, CapabilitySet::ChannelInputAbility,
    CapabilitySet::VideoPicAbility, CapabilitySet::CameraPara,
    CapabilitySet::AudioVideoCompressInfo, CapabilitySet::CustomStreamCap,
    CapabilitySet::PTZAbility, CapabilitySet::FishEyeAbility, CapabilitySet::DynChannelAbility,
    //
    CapabilitySet::DecoderAbility, CapabilitySet::WallAbility, CapabilitySet::VideoPlatformAbility,
    CapabilitySet::CodeSubSystemAbility, CapabilitySet::IntercomNoticeVideoAbility,
    CapabilitySet::IntercomDeviceIpViewAbility,
    //
    CapabilitySet::RecordAbility, CapabilitySet::CVRAbility, CapabilitySet::SerialAbility,
    //
    CapabilitySet::VcaAbility, CapabilitySet::SmartCap, CapabilitySet::RegionExitingCap,
    CapabilitySet::RegionParkingCap, CapabilitySet::RegionUnBaggageCap,
    CapabilitySet::RegionBaggageCap, CapabilitySet::VehicleInfoResultCap, CapabilitySet::ThermalCap,
    CapabilitySet::ManualThermometryCap,
    //
    CapabilitySet::DeviceCap, CapabilitySet::SystemDeviceCap, CapabilitySet::ClusterCapability,
    CapabilitySet::DiscoveryModeCap, CapabilitySet::SecurityAbility, CapabilitySet::UserAbility,
    CapabilitySet::NetAppAbility,
    //
    CapabilitySet::CMSearchResult, CapabilitySet::SwitchesWorkStateSearchResult>;

}  // namespace TestSupport
