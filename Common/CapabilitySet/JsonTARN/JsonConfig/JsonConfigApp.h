// Configuration, search and control in the protocol's JSON form. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

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
#include "CapabilitySet/JsonTARN/JsonStatus.h"

struct tagNET_ORB_XML_CONFIG_OUTPUT;

namespace CapabilitySet
{

/// As in Queries.h, with these differences: only the SDK's 43 grows the buffer, its 1000 and 1001
/// are passed on unchanged, and 23 means that memory ran out. True means that the device answered,
/// even if it refused: check the JsonStatus. If the SDK cannot convert a channel, the operation
/// returns false with error 0 and sends nothing. Input records are never changed.
class CAPABILITYSET_API JsonConfigApp
{
public:
    // Alarm hosts. `subSystemID`, `zoneID` and `outputID` are the host's own numbers.

    /// Arms a subsystem. The host's capability lists the `ways`, such as "away".
    /// POST /TARN/SecurityCP/control/arm/<{subSystemID}>?ways=<{ways}>&format=json
    // Kept: the angle brackets are sent, here and in the requests below that show them.
    static bool SetDevArming(JsonStatus& status, const std::string ways, const int subSystemID,
                             unsigned int& error, const int userID);
    /// Disarms a subsystem.
    /// POST /TARN/SecurityCP/control/disarm/<{subSystemID}>?format=json
    static bool SetDevDisArm(JsonStatus& status, const int subSystemID, unsigned int& error,
                             const int userID);
    /// Clears the alarms of a subsystem.
    /// POST /TARN/SecurityCP/control/clearAlarm/<{subSystemID}>?format=json
    static bool SetDevClearAlarm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                 const int userID);
    /// Bypasses a zone, or for zone -1 the zones that `cfg` lists.
    /// POST /TARN/SecurityCP/control/bypass/<{zoneID}>?format=json
    /// For zone -1 POST /TARN/SecurityCP/control/bypass?format=json, with `cfg` as body
    static bool SetDevBypass(const AlarmHostBypassCfg& cfg, JsonStatus& status, unsigned int& error,
                             const int zoneID, const int userID);
    /// Ends the bypass of a zone, or for zone -1 of the zones that `cfg` lists.
    /// POST /TARN/SecurityCP/control/bypassRecover/<{zoneID}>?format=json
    /// For zone -1 POST /TARN/SecurityCP/control/bypassRecover?format=json, with `cfg` as body
    static bool SetDevBypassRecover(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                    unsigned int& error, const int zoneID, const int userID);
    /// Switches an output, or for output -1 the outputs that `cfg` lists. Waits up to 20 s.
    /// PUT /TARN/SecurityCP/control/outputs/{outputID}?format=json, with `cfg` as body
    /// For output -1 POST /TARN/SecurityCP/control/outputs?format=json, with `cfg` as body
    /// Errors of single outputs are appended to `errors`, which is never cleared.
    static bool SetOutputControl(const AlarmHostOutputCfg& cfg, unsigned int& error,
                                 JsonErrorStatusList& errors, const int outputID, const int userID);
    /// Connections of the host to its centre.
    /// GET /TARN/SecurityCP/status/communication?format=json
    static bool GetAlarmHostCommuniStatus(AlarmHostCommunicationStatus& out, unsigned int& error,
                                          const int userID);
    /// Zones of the host.
    /// GET /TARN/SecurityCP/Configuration/zones?format=json
    static bool GetAlarmHostZoneConfiguration(AlarmHostZoneConfig& out, unsigned int& error,
                                              const int userID);
    /// Subsystems of the host.
    /// GET /TARN/SecurityCP/Configuration/subSys?format=json
    static bool GetSubSystemConfig(AlarmHostSubSystemConfig& out, unsigned int& error,
                                   const int userID);
    /// Outputs of the host.
    /// GET /TARN/SecurityCP/Configuration/outputs?format=json
    static bool GetTriggerConfig(TriggerListConfig& out, unsigned int& error, const int userID);
    /// One page of the host's log.
    /// POST /TARN/SecurityCP/Log/search?format=json, with the condition as body
    static bool GetAlarmHostDeviceLog(const AlarmHostLogConditionDescription& condition,
                                      AlarmHostDeviceLogResult& out, unsigned int& error,
                                      const int userID);

    // Fire detectors.

    /// States of all detectors.
    /// GET /TARN/FireControl/Status/detectorStatus?format=json
    static bool GetDetectorStates(DetectorStates& out, unsigned int& error, const int userID);
    /// Commands that detectors accept.
    /// GET /TARN/FireControl/Control/detectorAlarm/capabilities?format=json
    static bool GetDetectorSilenceCap(DetectorSilenceCap& out, unsigned int& error,
                                      const unsigned int userID);
    /// Sends a command to a detector. DetectorSilenceCap lists the limits of `first` and `second`.
    /// PUT /TARN/FireControl/Control/detectorAlarm/{first}?format=json, with the command as body
    /// For a `second` of 0 or more PUT /TARN/FireControl/Control/detectorAlarm/{first}/{second}
    /// ?format=json, likewise
    static bool SetDetectorSilence(JsonStatus& status, DetectorSilence command, unsigned int& error,
                                   const int first, const int second, const int userID);

    // Functions that a client starts manually.

    /// Settings of manual face snaps.
    /// GET /TARN/Intelligent/channels/{channel}/manualFaceSnap?format=json
    static bool GetManualFaceSnapCfg(ManualFaceSnapCfg& out, unsigned int& error, const int channel,
                                     const int userID);
    /// Tracks a person.
    /// PUT /TARN/Intelligent/channels/{channel}/manualPersonArmingTrack?format=json, with `track`
    /// as body
    // Kept: the line is sent without CR LF.
    static bool setManualPersonTrack(ManualPersonArmingTrack& track, unsigned int& error,
                                     const int channel, const int userID);
    /// Measures the temperature at a point in the picture.
    /// PUT /TARN/Thermal/channels/{channel}/clickToThermometry/rules/1?format=json, with
    /// `thermometry` as body
    static bool SetMaunalClickThermomtry(JsonStatus& status, ManualClickThermometry thermometry,
                                         unsigned int& error, const int channel, const int userID);
    /// De-icing of the pan-tilt head. `channel` is not sent.
    /// GET /TARN/System/Hardware/PTDeicing?format=json
    static bool GetManualPTDeicingCfg(ManualPTDeicingCfg& out, unsigned int& error,
                                      const int channel, const int userID);
    /// Sets the de-icing of the pan-tilt head. `channel` is not sent.
    /// PUT /TARN/System/Hardware/PTDeicing?format=json, with `cfg` as body
    static bool SetManualPTDeicingCfg(const ManualPTDeicingCfg& cfg, JsonStatus& status,
                                      unsigned int& error, const int channel, const int userID);

    // Paged searches, each with its description or condition as body. While responseStatusStrg is
    // "MORE", search again with the same searchID and a higher searchResultPosition.

    /// Queue lengths.
    /// POST /TARN/Intelligent/channels/{channel}/personQueueDetection/queueCountingResult
    /// ?format=json
    static bool SearchPersonQueueCounting(const PersonQueueCountingDescription& description,
                                          PersonQueueCountingResult& out, unsigned int& error,
                                          const int channel, const int userID);
    /// Waiting times.
    /// POST /TARN/Intelligent/channels/{channel}/personQueueDetection/queueTimeResult?format=json
    static bool SearchPersonQueueTime(const PersonQueueTimeDescription& description,
                                      PersonQueueTimeResult& out, unsigned int& error,
                                      const int channel, const int userID);
    /// Captured faces.
    /// POST /TARN/SDT/Face/captureSearch
    // Kept: the line is sent without "?format=json".
    static bool GetCaptureSearchResult(CaptureSearchDescription& description,
                                       CaptureSearchResult& out, unsigned int& error,
                                       const int userID);
    /// People in face libraries.
    /// POST /TARN/Intelligent/FDLib/FCSearch?format=json
    static bool GetFDLibFCSearchByJson(FDLibSearchDescription& description, FDLibSearchResult& out,
                                       unsigned int& error, const int userID);
    /// Traffic at an intersection.
    /// POST /TARN/Intelligent/channels/{channel}/intersectionAnalysis/search?format=json
    static bool SearchIntersectionAnalysis(const IntersectionAnalysisCondition& condition,
                                           IntersectionAnalysisResult& out, unsigned int& error,
                                           const int channel, const int userID);
    /// Files by the type of target in them.
    /// POST /TARN/ContentMgmt/SearchByTargetType?format=json
    static bool SearchTargetFiles(TargetSearchDescription& description, TargetSearchResult& out,
                                  unsigned int& error, const int userID);
    /// Video tasks of a data centre. Has no error argument: see Keel::Error::GetLastError(), which
    /// 43 and 23 do not set.
    /// POST /TARN/SDT/Management/Task/Video/monitorPort/search?format=json
    // Kept: the line is sent without CR LF.
    static bool getDataCenterResource(DataCenterTaskResult& out,
                                      const DataCenterTaskCond& condition, const int userID);
    /// Analysed behaviour.
    /// POST /TARN/SDT/Management/analysisResult/search?format=json
    static bool getDeeplyThinkBehaviorSearchResult(DeeplyThinkBehaviorDescription& description,
                                                   DeeplyThinkBehaviorSearch& out,
                                                   unsigned int& error, const int userID);

    // Data packages. They wait up to two minutes and accept 1,048,576,000 bytes; a larger package
    // is error 43. On success they set outBuffer and returnedSize of `out`: outBuffer is an array
    // of exactly returnedSize bytes. The caller frees it, as char*, with delete[]. On failure `out`
    // is unchanged.

    /// The results of a capture search.
    /// POST /TARN/SDT/Face/captureSearch/dataPackage, with the description as body
    // Kept: the line is sent without "?format=json".
    static bool GetFCDataPackageByJson(CaptureSearchDescription& description,
                                       tagNET_ORB_XML_CONFIG_OUTPUT& out, unsigned int& error,
                                       const int userID);
    /// The results of a human-feature search.
    /// GET /TARN/SDT/HFPD/search/dataPackage/{taskID}?format=json
    static bool GetHFPDDataPackage(tagNET_ORB_XML_CONFIG_OUTPUT& out, std::string taskID,
                                   unsigned int& error, const int userID);

    // Human-feature search runs as a task on the device. Poll its progress, then fetch the results
    // or their package.

    /// The task that compares captured faces with libraries.
    /// GET /TARN/SDT/HFPD/searchTask/captureLibCollision?format=json
    static bool GetHFPDCaptureLibCollisionTask(HFPDCaptureLibCollisionTask& out,
                                               unsigned int& error, const int userID);
    /// Progress of a task.
    /// GET /TARN/SDT/Management/Task/progress/{taskID}?format=json
    static bool GetHFPDSearchProgress(HFPDSearchProgress& out, std::string taskID,
                                      unsigned int& error, const int userID);
    /// What a task has found.
    /// GET /TARN/SDT/HFPD/searchTask/result/recordData/{taskID}?format=json
    static bool GetHFPDSearchRecordData(HFPDSearchFaceResult& out, std::string taskID,
                                        unsigned int& error, const int userID);
    /// Pauses, resumes, deletes or cancels a task:
    /// action 0: GET /TARN/SDT/Management/Task/pause/{task}?format=json
    /// action 1: GET /TARN/SDT/Management/Task/resume/{task}?format=json
    /// action 2: DELETE /TARN/SDT/Management/Task/{task}?format=json
    /// action 3: GET /TARN/SDT/Management/Task/cancel{task}?format=json
    /// Any other action: false with error 23, and nothing is sent.
    // Kept: no slash before the number in the line that cancels.
    static bool GetHFPDManagementTask(JsonStatus& status, int action, int task, unsigned int& error,
                                      const int userID);

    // Package of a face library search: get a task ID, then poll until the answer has a URL.

    /// Starts packing the results of a search.
    /// POST /TARN/Intelligent/FDLib/FCSearch/dataPackage?format=json, with the description as body
    static bool GetFDLibFCSearchDataPackageTaskID(FDLibSearchDescription& description,
                                                  FDLibFCSearchPackageByJsonResult& out,
                                                  unsigned int& error, const int userID);
    /// Progress of the packing, and the URL of the package once it is complete.
    /// GET /TARN/Intelligent/FDLib/FCSearch/dataPackage/progress?format=json&taskID={taskID}
    static bool GetFDLibFCSearchDataPackage(FDLibFCSearchPackageByTaskID& out, std::string taskID,
                                            unsigned int& error, const int userID);

    // Analysis.

    /// How similar the faces in pictures are.
    /// POST /TARN/Intelligent/imagesComparision/face, with the description as body
    // Kept: the line is sent without "?format=json".
    static bool GetImagesComparision(ImagesCmpDescription& description, ImagesCmpResult& out,
                                     unsigned int& error, const int userID);
    /// Settings of the traffic analysis.
    /// GET /TARN/Intelligent/channels/{channel}/intersectionAnalysis?format=json
    static bool GetIntersectionAnalysisConfig(IntersectionAnalysisConfig& out, unsigned int& error,
                                              const int channel, const int userID);
    /// Algorithm models on the device.
    /// GET /TARN/Intelligent/AIOpenPlatform/algorithmModel/management?format=json
    static bool GetAIOPModel(GetAIOPAlgorithmModel& out, unsigned int& error, const int userID);
    /// Tells the device whether an alarm was right.
    /// PUT /TARN/Intelligent/misinfoFilter/confirmation?format=json, with `confirm` as body
    static bool setMisinfoConfirmConfig(const MisinfoConfirm& confirm, JsonStatus& status,
                                        unsigned int& error, const int userID);

    // Audio.

    /// Audio detection of a channel.
    /// GET /TARN/System/Audio/channels/{channel}/Test?format=json
    // Kept: both lines send the channel as passed and have no CR LF.
    static bool GetAudioDectioinCfg(CAudioDectionCfg& out, unsigned int& error, const int channel,
                                    const int userID);
    /// Sets the audio detection of a channel. `flag` has no effect.
    /// PUT /TARN/System/Audio/channels/{channel}/Test?format=json, with `cfg` as body
    static bool SetAudioDectioinCfg(const CAudioDectionCfg& cfg, unsigned int& error,
                                    const int channel, const bool flag, const int userID);
    /// Imports a detected sound into a library.
    /// POST /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib?format=json, with `data`
    /// as body
    static bool PostAudioDetectionToAudioLib(const AudioImportAudioLibData& data,
                                             AudioImportAudioLibResult& out, unsigned int& error,
                                             const int& userID);
    /// Audio libraries of the device.
    /// GET /TARN/Intelligent/audioLib?format=json
    static bool GetAudioLibBaseConfig(AudioLibBaseConfig& out, unsigned int& error,
                                      const int& userID);

    // Equipment.

    /// Slots of a fibre converter crate.
    /// GET /TARN/Transfers/FiberConvert/slot?format=json
    // Kept: the line is sent without CR LF.
    static bool getFiberConvertSlotList(FiberConvertSlotList& out, unsigned int& error,
                                        const int userID);
    /// Power over Ethernet at the ports of a switch.
    /// GET /TARN/Transfers/Switches/portCfg/portPOEInfo?format=json
    static bool getPortPoeInfoCfgList(PortPoeInfoList& out, unsigned int& error, int userID);
    /// Alarm lines of a radar.
    /// GET /TARN/Radar/Configuration/alarmLineCfg?format=json
    static bool GetRadarAlarmLineConfiguration(AllAlarmLineCfg& out, unsigned int& error,
                                               const int userID);
};

}  // namespace CapabilitySet
