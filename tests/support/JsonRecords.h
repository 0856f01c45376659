// Every JSON record, in one list of types.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonCap/AlarmHostCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/AnalysisCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/AudioCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/FaceCap.h"
#include "CapabilitySet/JsonTARN/JsonCap/SwitchCap.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostControl.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostInfo.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostStatus.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AudioConfig.h"
#include "CapabilitySet/JsonTARN/JsonConfig/BehaviorSearch.h"
#include "CapabilitySet/JsonTARN/JsonConfig/CaptureSearch.h"
#include "CapabilitySet/JsonTARN/JsonConfig/FaceLibrarySearch.h"
#include "CapabilitySet/JsonTARN/JsonConfig/FireControl.h"
#include "CapabilitySet/JsonTARN/JsonConfig/HumanFeatureSearch.h"
#include "CapabilitySet/JsonTARN/JsonConfig/ImagesComparision.h"
#include "CapabilitySet/JsonTARN/JsonConfig/IntersectionAnalysis.h"
#include "CapabilitySet/JsonTARN/JsonConfig/ManualControl.h"
#include "CapabilitySet/JsonTARN/JsonConfig/OpenPlatform.h"
#include "CapabilitySet/JsonTARN/JsonConfig/PersonQueue.h"
#include "CapabilitySet/JsonTARN/JsonConfig/RadarConfig/AlarmLineConfig.h"
#include "CapabilitySet/JsonTARN/JsonConfig/TargetSearch.h"
#include "CapabilitySet/JsonTARN/JsonConfig/TransferConfig.h"
#include "support/RecordTypes.h"

namespace TestSupport
{

using JsonRecords = RecordTypes<
    CapabilitySet::AlarmHostTARNCapability, CapabilitySet::AlarmHostOperateTARNCapability,
    CapabilitySet::AlarmHostStatusTARNCapability,
    //
    CapabilitySet::IntersectionAnalysisCap, CapabilitySet::CityManagementCapability,
    CapabilitySet::DeeplyThinkBehaviorCap, CapabilitySet::MisinfoConfirmCap,
    //
    CapabilitySet::AudioDetectionSearchCapability, CapabilitySet::ImportAudioLibCap,
    //
    CapabilitySet::ImagesComparisionCapbility, CapabilitySet::HFPDCapbility,
    //
    CapabilitySet::FiberConvertCap, CapabilitySet::PortPoeInfoCap,
    CapabilitySet::PortPoeInfoListCap,
    //
    CapabilitySet::AlarmHostBypassCfg, CapabilitySet::AlarmHostOutputCfg,
    CapabilitySet::DetectorSilence,
    //
    CapabilitySet::AlarmSirenCfg, CapabilitySet::AlarmHostCIDAlarmCfg,
    CapabilitySet::AlarmSirenStatus, CapabilitySet::AlarmHostSubSystemsInfo,
    CapabilitySet::AlarmHostOutputsModulesInfo, CapabilitySet::AlarmHostZonesInfo,
    CapabilitySet::AlarmHostSirensInfo,
    //
    CapabilitySet::AlarmHostCommunicationStatus, CapabilitySet::AlarmHostZoneConfig,
    CapabilitySet::AlarmHostSubSystemConfig, CapabilitySet::TriggerListConfig,
    CapabilitySet::AlarmHostDeviceLogResult,
    //
    CapabilitySet::CAudioDectionCfg, CapabilitySet::AudioImportAudioLibData,
    CapabilitySet::AudioImportAudioLibResult, CapabilitySet::AudioLibBaseConfig,
    //
    CapabilitySet::DeeplyThinkBehaviorDescription, CapabilitySet::DeeplyThinkBehaviorSearch,
    CapabilitySet::MisinfoConfirm,
    //
    CapabilitySet::CaptureSearchDescription, CapabilitySet::CaptureSearchResult,
    //
    CapabilitySet::FDLibSearchDescription, CapabilitySet::FDLibSearchResult,
    CapabilitySet::FDLibFCSearchPackageByJsonResult, CapabilitySet::FDLibFCSearchPackageByTaskID,
    //
    CapabilitySet::DetectorStates, CapabilitySet::DetectorSilenceCap,
    //
    CapabilitySet::HFPDCaptureLibCollisionTask, CapabilitySet::HFPDSearchProgress,
    CapabilitySet::HFPDSearchFaceResult,
    //
    CapabilitySet::ImagesCmpDescription, CapabilitySet::ImagesCmpResult,
    //
    CapabilitySet::IntersectionAnalysisConfig, CapabilitySet::IntersectionAnalysisCondition,
    CapabilitySet::IntersectionAnalysisResult,
    //
    CapabilitySet::ManualFaceSnapCfg, CapabilitySet::ManualPersonArmingTrack,
    CapabilitySet::ManualClickThermometry, CapabilitySet::ManualPTDeicingCfg,
    //
    CapabilitySet::GetAIOPAlgorithmModel,
    //
    CapabilitySet::PersonQueueCountingDescription, CapabilitySet::PersonQueueCountingResult,
    CapabilitySet::PersonQueueTimeDescription, CapabilitySet::PersonQueueTimeResult,
    //
    CapabilitySet::AllAlarmLineCfg,
    //
    CapabilitySet::TargetSearchDescription, CapabilitySet::TargetSearchResult,
    CapabilitySet::DataCenterTaskCond, CapabilitySet::DataCenterTaskResult,
    //
    CapabilitySet::FiberConvertSlotList, CapabilitySet::PortPoeInfoList>;

}  // namespace TestSupport
