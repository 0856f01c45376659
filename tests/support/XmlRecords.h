// Every record that is read from XML by a field list, in one list of types.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/AppConfig.h"
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"
#include "CapabilitySet/XMLParamInterface/WirelessConfig.h"
#include "support/RecordTypes.h"

namespace TestSupport
{

using XmlRecords = RecordTypes<
    CapabilitySet::RS485OfBC, CapabilitySet::ZoneNum, CapabilitySet::TriggerNum,
    CapabilitySet::Sensor, CapabilitySet::HardwareCapability, CapabilitySet::LocalVout,
    CapabilitySet::NeedReboot, CapabilitySet::SoftwareCapability, CapabilitySet::BasicCapability,
    //
    CapabilitySet::PIRAlarm, CapabilitySet::WirelessAlarm, CapabilitySet::CallHelpAlarm,
    CapabilitySet::channelEntry, CapabilitySet::AlarmAbility,
    //
    CapabilitySet::ExceptionAlarm, CapabilitySet::AlarmIn, CapabilitySet::AlarmOut,
    CapabilitySet::FaceDetection, CapabilitySet::ManualTrace, CapabilitySet::Track,
    CapabilitySet::AudioSteepDrop, CapabilitySet::Abnormal, CapabilitySet::VoiceDetection,
    CapabilitySet::AlertLine, CapabilitySet::TraversingVirtualPlane, CapabilitySet::Intrusiongion,
    CapabilitySet::FieldDetection, CapabilitySet::DefousDetection,
    CapabilitySet::SceneChangeDetection, CapabilitySet::VCADetection, CapabilitySet::EventAbility,
    CapabilitySet::EventTriggerCapType, CapabilitySet::EventTriggerCap,
    CapabilitySet::EventTARNAbility, CapabilitySet::ChannelEventAbility,
    //
    CapabilitySet::CPTZPresetCfg, CapabilitySet::CPTZPresetListCfg,
    CapabilitySet::CVelTarnPTZPresetList, CapabilitySet::CVelTarnPTZPattern,
    CapabilitySet::CVelTarnPTZPatternList, CapabilitySet::CVelTarnPTZPatrolPresetInfo,
    CapabilitySet::CVelTarnPTZPatrol, CapabilitySet::CVelTarnPTZPatrolList,
    //
    CapabilitySet::TrackIDList, CapabilitySet::TimeSpan, CapabilitySet::SearchTimeSpanList,
    CapabilitySet::ContentType, CapabilitySet::ContentTypeList, CapabilitySet::MetaData,
    CapabilitySet::MetaDataList, CapabilitySet::CMSearchDescription,
    //
    CapabilitySet::App, CapabilitySet::AppList, CapabilitySet::SwitchGateway,
    CapabilitySet::SwitchAddress, CapabilitySet::SwitchesBasicInfo, CapabilitySet::PortRate,
    CapabilitySet::PortRateList, CapabilitySet::PortInfo, CapabilitySet::PortInfoList,
    CapabilitySet::SwitchesWorkStateSearchCond, CapabilitySet::DiscoveryMode,
    CapabilitySet::TemperatureSensor, CapabilitySet::FanStatus, CapabilitySet::PressureSensor,
    CapabilitySet::DeviceStatus, CapabilitySet::WPA, CapabilitySet::WirelessSecurity,
    CapabilitySet::Wireless, CapabilitySet::CBridgeRegion>;

/// The name of a record's root element; of a record that is no document, one like any other.
template <class Record>
constexpr const char* RootOf()
{
    if constexpr (requires { Record::kRoot; }) {
        return Record::kRoot;
    } else if constexpr (requires { Record::kElement; }) {
        return Record::kElement;
    } else {
        return "part";
    }
}

}  // namespace TestSupport
