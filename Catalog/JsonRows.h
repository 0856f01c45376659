// The records that devices answer in JSON: capabilities, settings and states.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Catalog/Rows.h"

namespace CapabilitySet::catalog
{

template <class Row>
void JsonRows(Row&& row)
{
    row("AlarmHostTARNCapability", "what an alarm host has",
        &JsonCapApp::GetAlarmHostTARNCapability);
    row("AlarmHostOperateCapability", "commands that an alarm host takes",
        &JsonCapApp::GetAlarmHostOperateCapability);
    row("AlarmHostStatusCapability", "states that an alarm host tells",
        &JsonCapApp::GetAlarmHostStatusCapability);
    row("DetectorSilenceCap", "commands that fire detectors take",
        &JsonConfigApp::GetDetectorSilenceCap);
    row("ImagesComparisionCapability", "comparing the faces of pictures",
        &JsonCapApp::GetImagesComparisionCapability);
    row("HFPDCapability", "searching people by their features", &JsonCapApp::GetHFPDCapability);
    row("IntersectionAnalysisCap", "analysis of the traffic at a crossing",
        &JsonCapApp::GetIntersectionAnalysisCap, kChannel);
    row("CityManagementCap", "searching city management events", &JsonCapApp::GetCityManagementCap);
    row("DeeplyThinkBehaviorCap", "searching the results of behaviour analysis",
        &JsonCapApp::getDeeplyThinkAnalysisCap);
    row("MisinfoConfirmCap", "confirming alarms", &JsonCapApp::getmisinfoConfirmCap);
    row("AudioDetectionSearchCap", "searching detected sounds",
        &JsonCapApp::GetAudioDetectionSearchCap);
    row("ImportAudioLibCap", "importing sounds into a library", &JsonCapApp::GetImportAudioLibCap);
    row("FiberConvertCap", "fibre converters", &JsonCapApp::getFiberConvertCapability);
    row("PortPoeInfoListCap", "power over Ethernet", &JsonCapApp::GetPortPoeInfoListCap);
    row("FiberConvertSlotList", "slots of a fibre converter's crate",
        &JsonConfigApp::getFiberConvertSlotList);
    row("PortPoeInfoList", "power over Ethernet at each port",
        &JsonConfigApp::getPortPoeInfoCfgList);
    row("ManualFaceSnapCfg", "snapping faces by hand", &JsonConfigApp::GetManualFaceSnapCfg,
        kChannel, kUser);
    row("ManualPTDeicingCfg", "freeing the pan-tilt head of ice",
        &JsonConfigApp::GetManualPTDeicingCfg, kChannel, kUser);
    row("IntersectionAnalysisConfig", "settings of the traffic analysis",
        &JsonConfigApp::GetIntersectionAnalysisConfig, kChannel, kUser);
    row("AIOPAlgorithmModel", "algorithm models of the AI platform", &JsonConfigApp::GetAIOPModel);
    row("AudioDetection", "audio detection of a channel", &JsonConfigApp::GetAudioDectioinCfg,
        kChannel, kUser);
    row("AudioLibBaseConfig", "audio libraries", &JsonConfigApp::GetAudioLibBaseConfig);
    row("RadarAlarmLines", "alarm lines of a radar",
        &JsonConfigApp::GetRadarAlarmLineConfiguration);
    row("AlarmHostCommunicationStatus", "how an alarm host reaches its centre",
        &JsonConfigApp::GetAlarmHostCommuniStatus);
    row("AlarmHostZoneConfig", "zones of an alarm host",
        &JsonConfigApp::GetAlarmHostZoneConfiguration);
    row("AlarmHostSubSystemConfig", "subsystems of an alarm host",
        &JsonConfigApp::GetSubSystemConfig);
    row("TriggerListConfig", "outputs of an alarm host", &JsonConfigApp::GetTriggerConfig);
    row("DetectorStates", "states of fire detectors", &JsonConfigApp::GetDetectorStates);
}

}  // namespace CapabilitySet::catalog
