// The configuration, search and control operations of the protocol's JSON flavour.
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

/// How every operation behaves: output records and the error slot are reset first. True means that
/// the device carried the request out or answered it, whatever the answer's status holds: look at
/// the JsonStatus. On false the error slot holds 43 (the answer is larger than 16,384,000 bytes),
/// 23 (memory ran out), or the SDK's own error number, and but for 43 and 23
/// Keel::Error::GetLastError() tells more; output records stay at their defaults. Channels are
/// given by the SDK's number; one that the SDK cannot convert is false with error 0, and nothing
/// is sent. Operations may be called from any thread.
class CAPABILITYSET_API JsonConfigApp
{
public:
    // Alarm hosts. `subSystemID` and `zoneID` are the host's own numbers.

    /// Arms a subsystem; `ways` is one of the ways that the host's capability lists.
    static bool SetDevArming(JsonStatus& status, const std::string ways, const int subSystemID,
                             unsigned int& error, const int userID);
    /// Disarms a subsystem.
    static bool SetDevDisArm(JsonStatus& status, const int subSystemID, unsigned int& error,
                             const int userID);
    /// Clears a subsystem's alarms.
    static bool SetDevClearAlarm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                 const int userID);
    /// Bypasses a zone, or with zone -1 the zones that `cfg` lists.
    static bool SetDevBypass(const AlarmHostBypassCfg& cfg, JsonStatus& status, unsigned int& error,
                             const int zoneID, const int userID);
    /// Takes a zone back from bypass, or with zone -1 the zones that `cfg` lists.
    static bool SetDevBypassRecover(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                    unsigned int& error, const int zoneID, const int userID);
    /// Switches an output, or with output -1 the outputs that `cfg` lists. Errors of single outputs
    /// are appended to `errors`, which is never cleared.
    static bool SetOutputControl(const AlarmHostOutputCfg& cfg, unsigned int& error,
                                 JsonErrorStatusList& errors, const int outputID, const int userID);
    /// How the host reaches its centre.
    static bool GetAlarmHostCommuniStatus(AlarmHostCommunicationStatus& out, unsigned int& error,
                                          const int userID);
    /// The host's zones.
    static bool GetAlarmHostZoneConfiguration(AlarmHostZoneConfig& out, unsigned int& error,
                                              const int userID);
    /// The host's subsystems.
    static bool GetSubSystemConfig(AlarmHostSubSystemConfig& out, unsigned int& error,
                                   const int userID);
    /// The host's outputs.
    static bool GetTriggerConfig(TriggerListConfig& out, unsigned int& error, const int userID);
    /// One page of the host's log.
    static bool GetAlarmHostDeviceLog(const AlarmHostLogConditionDescription& condition,
                                      AlarmHostDeviceLogResult& out, unsigned int& error,
                                      const int userID);

    // Fire detectors.

    /// The states of all detectors.
    static bool GetDetectorStates(DetectorStates& out, unsigned int& error, const int userID);
    /// Which commands detectors take.
    static bool GetDetectorSilenceCap(DetectorSilenceCap& out, unsigned int& error,
                                      const unsigned int userID);
    /// Commands a detector, or with a `second` that is not negative one of the detectors at it.
    static bool SetDetectorSilence(JsonStatus& status, DetectorSilence command, unsigned int& error,
                                   const int first, const int second, const int userID);

    // What a client starts by hand. Input records are left alone, those passed by plain reference
    // too.

    /// How faces are snapped by hand at a channel.
    static bool GetManualFaceSnapCfg(ManualFaceSnapCfg& out, unsigned int& error, const int channel,
                                     const int userID);
    /// Tracks a person.
    static bool setManualPersonTrack(ManualPersonArmingTrack& track, unsigned int& error,
                                     const int channel, const int userID);
    /// Measures the temperature at a point of the picture.
    static bool SetMaunalClickThermomtry(JsonStatus& status, ManualClickThermometry thermometry,
                                         unsigned int& error, const int channel, const int userID);
    /// How the device frees its pan-tilt head of ice. The channel is not sent.
    static bool GetManualPTDeicingCfg(ManualPTDeicingCfg& out, unsigned int& error,
                                      const int channel, const int userID);
    /// Sets what GetManualPTDeicingCfg gets. The channel is not sent.
    static bool SetManualPTDeicingCfg(const ManualPTDeicingCfg& cfg, JsonStatus& status,
                                      unsigned int& error, const int channel, const int userID);

    // Searches that are answered page by page: ask again with the same searchID and a higher
    // searchResultPosition while the answer's responseStatusStrg is "MORE".

    /// Lengths of queues.
    static bool SearchPersonQueueCounting(const PersonQueueCountingDescription& description,
                                          PersonQueueCountingResult& out, unsigned int& error,
                                          const int channel, const int userID);
    /// Waiting times at queues.
    static bool SearchPersonQueueTime(const PersonQueueTimeDescription& description,
                                      PersonQueueTimeResult& out, unsigned int& error,
                                      const int channel, const int userID);
    /// Captured faces.
    static bool GetCaptureSearchResult(CaptureSearchDescription& description,
                                       CaptureSearchResult& out, unsigned int& error,
                                       const int userID);
    /// Persons of face libraries.
    static bool GetFDLibFCSearchByJson(FDLibSearchDescription& description, FDLibSearchResult& out,
                                       unsigned int& error, const int userID);
    /// Results of the traffic analysis at a channel.
    static bool SearchIntersectionAnalysis(const IntersectionAnalysisCondition& condition,
                                           IntersectionAnalysisResult& out, unsigned int& error,
                                           const int channel, const int userID);
    /// Files by the kind of target in them.
    static bool SearchTargetFiles(TargetSearchDescription& description, TargetSearchResult& out,
                                  unsigned int& error, const int userID);
    /// Video tasks of a data centre. Without an error slot: Keel::Error::GetLastError() tells why
    /// it failed, but for 43 and 23.
    static bool getDataCenterResource(DataCenterTaskResult& out,
                                      const DataCenterTaskCond& condition, const int userID);
    /// Analysed behaviour.
    static bool getDeeplyThinkBehaviorSearchResult(DeeplyThinkBehaviorDescription& description,
                                                   DeeplyThinkBehaviorSearch& out,
                                                   unsigned int& error, const int userID);

    // Data packages. The answer is waited for up to two minutes and may hold 1,048,576,000 bytes
    // (else error 43). Of `out` outBuffer and returnedSize are set: outBuffer is an array of
    // exactly returnedSize bytes that the caller releases with
    // `delete[] static_cast<char*>(out.outBuffer)`. On false `out` is not touched.

    /// What a search for captured faces finds, packed.
    static bool GetFCDataPackageByJson(CaptureSearchDescription& description,
                                       tagNET_ORB_XML_CONFIG_OUTPUT& out, unsigned int& error,
                                       const int userID);
    /// What a human-feature search has found, packed.
    static bool GetHFPDDataPackage(tagNET_ORB_XML_CONFIG_OUTPUT& out, std::string taskID,
                                   unsigned int& error, const int userID);

    // Human-feature search: a task of the device's. Poll its progress, then fetch its results or
    // their package. Task IDs are sent as they stand.

    /// The task that compares captures with libraries.
    static bool GetHFPDCaptureLibCollisionTask(HFPDCaptureLibCollisionTask& out,
                                               unsigned int& error, const int userID);
    /// How far a task is.
    static bool GetHFPDSearchProgress(HFPDSearchProgress& out, std::string taskID,
                                      unsigned int& error, const int userID);
    /// What a task has found.
    static bool GetHFPDSearchRecordData(HFPDSearchFaceResult& out, std::string taskID,
                                        unsigned int& error, const int userID);
    /// Pauses (action 0), resumes (1), deletes (2) or cancels (3) a task. Any other action is
    /// false with error 23, and nothing is sent.
    static bool GetHFPDManagementTask(JsonStatus& status, int action, int task, unsigned int& error,
                                      const int userID);

    // The package of a search in face libraries: get a task ID, then poll until there is a URL.

    /// Has the device pack what a search finds.
    static bool GetFDLibFCSearchDataPackageTaskID(FDLibSearchDescription& description,
                                                  FDLibFCSearchPackageByJsonResult& out,
                                                  unsigned int& error, const int userID);
    /// How far the packing is. The task ID is sent as it stands.
    static bool GetFDLibFCSearchDataPackage(FDLibFCSearchPackageByTaskID& out, std::string taskID,
                                            unsigned int& error, const int userID);

    // Analysis.

    /// How alike the faces of pictures are.
    static bool GetImagesComparision(ImagesCmpDescription& description, ImagesCmpResult& out,
                                     unsigned int& error, const int userID);
    /// Settings of the traffic analysis at a channel.
    static bool GetIntersectionAnalysisConfig(IntersectionAnalysisConfig& out, unsigned int& error,
                                              const int channel, const int userID);
    /// The algorithm models that the device holds.
    static bool GetAIOPModel(GetAIOPAlgorithmModel& out, unsigned int& error, const int userID);
    /// Tells the device whether alarms were right.
    static bool setMisinfoConfirmConfig(const MisinfoConfirm& confirm, JsonStatus& status,
                                        unsigned int& error, const int userID);

    // Audio. Channels are the client's numbers, sent as they are.

    /// Audio detection of a channel.
    static bool GetAudioDectioinCfg(CAudioDectionCfg& out, unsigned int& error, const int channel,
                                    const int userID);
    /// Sets it. The flag is accepted and has no effect.
    static bool SetAudioDectioinCfg(const CAudioDectionCfg& cfg, unsigned int& error,
                                    const int channel, const bool flag, const int userID);
    /// Imports a detected sound into a library.
    static bool PostAudioDetectionToAudioLib(const AudioImportAudioLibData& data,
                                             AudioImportAudioLibResult& out, unsigned int& error,
                                             const int& userID);
    /// The audio libraries of the device.
    static bool GetAudioLibBaseConfig(AudioLibBaseConfig& out, unsigned int& error,
                                      const int& userID);

    // Equipment.

    /// The slots of a fibre converter's crate.
    static bool getFiberConvertSlotList(FiberConvertSlotList& out, unsigned int& error,
                                        const int userID);
    /// Power over Ethernet at each port of a switch.
    static bool getPortPoeInfoCfgList(PortPoeInfoList& out, unsigned int& error, int userID);
    /// The alarm lines of a radar.
    static bool GetRadarAlarmLineConfiguration(AllAlarmLineCfg& out, unsigned int& error,
                                               const int userID);
};

}  // namespace CapabilitySet
