// Every JSON record, in one list of types.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "support/RecordTypes.h"

namespace CapabilitySet
{

using JsonRecords = TestSupport::RecordTypes<
    AlarmHostTARNCapability, AlarmHostOperateTARNCapability, AlarmHostStatusTARNCapability,
    IntersectionAnalysisCap, CityManagementCapability, DeeplyThinkBehaviorCap, MisinfoConfirmCap,
    AudioDetectionSearchCapability, ImportAudioLibCap, ImagesComparisionCapbility, HFPDCapbility,
    FiberConvertCap, PortPoeInfoCap, PortPoeInfoListCap, AlarmHostBypassCfg, AlarmHostOutputCfg,
    DetectorSilence, AlarmSirenCfg, AlarmHostCIDAlarmCfg, AlarmSirenStatus, AlarmHostSubSystemsInfo,
    AlarmHostOutputsModulesInfo, AlarmHostZonesInfo, AlarmHostSirensInfo,
    AlarmHostCommunicationStatus, AlarmHostZoneConfig, AlarmHostSubSystemConfig, TriggerListConfig,
    AlarmHostDeviceLogResult, CAudioDectionCfg, AudioImportAudioLibData, AudioImportAudioLibResult,
    AudioLibBaseConfig, DeeplyThinkBehaviorDescription, DeeplyThinkBehaviorSearch, MisinfoConfirm,
    CaptureSearchDescription, CaptureSearchResult, FDLibSearchDescription, FDLibSearchResult,
    FDLibFCSearchPackageByJsonResult, FDLibFCSearchPackageByTaskID, DetectorStates,
    DetectorSilenceCap, HFPDCaptureLibCollisionTask, HFPDSearchProgress, HFPDSearchFaceResult,
    ImagesCmpDescription, ImagesCmpResult, IntersectionAnalysisConfig,
    IntersectionAnalysisCondition, IntersectionAnalysisResult, ManualFaceSnapCfg,
    ManualPersonArmingTrack, ManualClickThermometry, ManualPTDeicingCfg, GetAIOPAlgorithmModel,
    PersonQueueCountingDescription, PersonQueueCountingResult, PersonQueueTimeDescription,
    PersonQueueTimeResult, AllAlarmLineCfg, TargetSearchDescription, TargetSearchResult,
    DataCenterTaskCond, DataCenterTaskResult, FiberConvertSlotList, PortPoeInfoList>;

}  // namespace CapabilitySet
