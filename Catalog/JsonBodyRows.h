// The JSON records that no query gets by itself: request bodies and what searches find.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "Catalog/Rows.h"

namespace CapabilitySet::catalog
{

template <class Row>
void JsonBodyRows(Row&& row)
{
    row("AlarmHostBypassCfg", "zones to bypass", parsed<AlarmHostBypassCfg>);
    row("AlarmHostOutputCfg", "outputs to switch", parsed<AlarmHostOutputCfg>);
    row("AlarmSirenCfg", "settings of a siren", parsed<AlarmSirenCfg>);
    row("AlarmHostCIDAlarmCfg", "event codes of an alarm host", parsed<AlarmHostCIDAlarmCfg>);
    row("AlarmSirenStatus", "state of a siren", parsed<AlarmSirenStatus>);
    row("AlarmHostSubSystemsInfo", "states of subsystems", parsed<AlarmHostSubSystemsInfo>);
    row("AlarmHostOutputsModulesInfo", "states of outputs and modules",
        parsed<AlarmHostOutputsModulesInfo>);
    row("AlarmHostZonesInfo", "states of zones", parsed<AlarmHostZonesInfo>);
    row("AlarmHostSirensInfo", "states of sirens", parsed<AlarmHostSirensInfo>);
    row("AlarmHostDeviceLogResult", "entries of an alarm host's log",
        parsed<AlarmHostDeviceLogResult>);
    row("DetectorSilence", "command to a fire detector", parsed<DetectorSilence>);
    row("AudioImportAudioLibData", "sound to import into a library",
        parsed<AudioImportAudioLibData>);
    row("AudioImportAudioLibResult", "result of importing a sound",
        parsed<AudioImportAudioLibResult>);
    row("DeeplyThinkBehaviorDescription", "search for analysed behaviour",
        parsed<DeeplyThinkBehaviorDescription>);
    row("DeeplyThinkBehaviorSearch", "analysed behaviour that a search found",
        parsed<DeeplyThinkBehaviorSearch>);
    row("MisinfoConfirm", "whether an alarm was right", parsed<MisinfoConfirm>);
    row("CaptureSearchDescription", "search for captured faces", parsed<CaptureSearchDescription>);
    row("CaptureSearchResult", "captured faces that a search found", parsed<CaptureSearchResult>);
    row("FDLibSearchDescription", "search in face libraries", parsed<FDLibSearchDescription>);
    row("FDLibSearchResult", "persons that a search in face libraries found",
        parsed<FDLibSearchResult>);
    row("FDLibFCSearchPackageByJsonResult", "task that packs a search in face libraries",
        parsed<FDLibFCSearchPackageByJsonResult>);
    row("FDLibFCSearchPackageByTaskID", "progress of that task",
        parsed<FDLibFCSearchPackageByTaskID>);
    row("HFPDCaptureLibCollisionTask", "task of a human-feature search",
        parsed<HFPDCaptureLibCollisionTask>);
    row("HFPDSearchProgress", "progress of that task", parsed<HFPDSearchProgress>);
    row("HFPDSearchFaceResult", "people that a human-feature search found",
        parsed<HFPDSearchFaceResult>);
    row("ImagesCmpDescription", "pictures whose faces are to be compared",
        parsed<ImagesCmpDescription>);
    row("ImagesCmpResult", "result of comparing faces", parsed<ImagesCmpResult>);
    row("IntersectionAnalysisCondition", "search in the traffic analysis",
        parsed<IntersectionAnalysisCondition>);
    row("IntersectionAnalysisResult", "traffic that a search found",
        parsed<IntersectionAnalysisResult>);
    row("ManualPersonArmingTrack", "person to track", parsed<ManualPersonArmingTrack>);
    row("ManualClickThermometry", "point at which to measure the temperature",
        parsed<ManualClickThermometry>);
    row("PersonQueueCountingDescription", "search for the lengths of queues",
        parsed<PersonQueueCountingDescription>);
    row("PersonQueueCountingResult", "lengths of queues that a search found",
        parsed<PersonQueueCountingResult>);
    row("PersonQueueTimeDescription", "search for waiting times",
        parsed<PersonQueueTimeDescription>);
    row("PersonQueueTimeResult", "waiting times that a search found",
        parsed<PersonQueueTimeResult>);
    row("TargetSearchDescription", "search for files by the target in them",
        parsed<TargetSearchDescription>);
    row("TargetSearchResult", "files that a search found", parsed<TargetSearchResult>);
    row("DataCenterTaskCond", "search for the video tasks of a data centre",
        parsed<DataCenterTaskCond>);
    row("DataCenterTaskResult", "video tasks that a search found", parsed<DataCenterTaskResult>);
    row("PortPoeInfoCap", "power over Ethernet at one port", parsed<PortPoeInfoCap>);
    row("JsonStatus", "what a device says of a request", parsed<JsonStatus>);
    row("JsonErrorStatusList", "errors of a batch request", parsed<JsonErrorStatusList>);
}

}  // namespace CapabilitySet::catalog
