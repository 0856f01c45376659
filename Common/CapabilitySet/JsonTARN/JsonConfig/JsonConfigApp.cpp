// The configuration, search and control operations of the protocol's JSON flavour.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"

#include <iterator>

#include "CapabilitySet/private/query/JsonOperation.h"

namespace CapabilitySet
{
namespace
{

using query::AskJson;
using query::BodyForm;
using query::LimitReport;
using query::SdkChannel;

constexpr query::Policy kPaddedBody{
    .growth = query::kJson.growth, .limit = LimitReport::Silent, .bodyForm = BodyForm::Padded};
/// A host answers only after switching its outputs.
constexpr query::Policy kOutputControl{.growth = query::kJson.growth,
                                       .limit = LimitReport::Silent,
                                       .timeout = 20000,
                                       .bodyForm = BodyForm::Padded};
/// Stands for all zones or outputs that the body lists.
constexpr int kBatch = -1;

}  // namespace

bool JsonConfigApp::SetDevArming(JsonStatus& status, const std::string ways, const int subSystemID,
                                 unsigned int& error, const int userID)
{
    // Kept: devices expect the angle brackets, here and below.
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/arm/<", subSystemID, ">?ways=<", &ways,
                    ">&format=json\r\n"});
}

bool JsonConfigApp::SetDevDisArm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                 const int userID)
{
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/disarm/<", subSystemID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetDevClearAlarm(JsonStatus& status, const int subSystemID, unsigned int& error,
                                     const int userID)
{
    return AskJson(
        status, error, userID, CAPABILITYSET_HERE,
        {"POST /TARN/SecurityCP/control/clearAlarm/<", subSystemID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetDevBypass(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                 unsigned int& error, const int zoneID, const int userID)
{
    if (zoneID == kBatch) {
        return AskJson(
            status, error, userID, CAPABILITYSET_HERE,
            {"POST /TARN/SecurityCP/control/bypass?format=json\r\n"}, [&] { return cfg.Make(); },
            kPaddedBody);
    }
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/bypass/<", zoneID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetDevBypassRecover(const AlarmHostBypassCfg& cfg, JsonStatus& status,
                                        unsigned int& error, const int zoneID, const int userID)
{
    if (zoneID == kBatch) {
        return AskJson(
            status, error, userID, CAPABILITYSET_HERE,
            {"POST /TARN/SecurityCP/control/bypassRecover?format=json\r\n"},
            [&] { return cfg.Make(); }, kPaddedBody);
    }
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SecurityCP/control/bypassRecover/<", zoneID, ">?format=json\r\n"});
}

bool JsonConfigApp::SetOutputControl(const AlarmHostOutputCfg& cfg, unsigned int& error,
                                     JsonErrorStatusList& errors, const int outputID,
                                     const int userID)
{
    const auto body = [&] { return cfg.Make(); };
    if (outputID == kBatch) {
        return AskJson(errors, error, userID, CAPABILITYSET_HERE,
                       {"POST /TARN/SecurityCP/control/outputs?format=json\r\n"}, body,
                       kOutputControl);
    }
    return AskJson(errors, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/SecurityCP/control/outputs/", outputID, "?format=json\r\n"}, body,
                   kOutputControl);
}

bool JsonConfigApp::GetAlarmHostCommuniStatus(AlarmHostCommunicationStatus& out,
                                              unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/status/communication?format=json\r\n"});
}

bool JsonConfigApp::GetAlarmHostZoneConfiguration(AlarmHostZoneConfig& out, unsigned int& error,
                                                  const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/Configuration/zones?format=json\r\n"});
}

bool JsonConfigApp::GetSubSystemConfig(AlarmHostSubSystemConfig& out, unsigned int& error,
                                       const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/Configuration/subSys?format=json\r\n"});
}

bool JsonConfigApp::GetTriggerConfig(TriggerListConfig& out, unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SecurityCP/Configuration/outputs?format=json\r\n"});
}

bool JsonConfigApp::GetAlarmHostDeviceLog(const AlarmHostLogConditionDescription& condition,
                                          AlarmHostDeviceLogResult& out, unsigned int& error,
                                          const int userID)
{
    return AskJson(
        out, error, userID, CAPABILITYSET_HERE,
        {"POST /TARN/SecurityCP/Log/search?format=json\r\n"}, [&] { return condition.Make(); },
        kPaddedBody);
}

bool JsonConfigApp::GetDetectorStates(DetectorStates& out, unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/FireControl/Status/detectorStatus?format=json\r\n"});
}

bool JsonConfigApp::GetDetectorSilenceCap(DetectorSilenceCap& out, unsigned int& error,
                                          const unsigned int userID)
{
    return AskJson(out, error, static_cast<int>(userID), CAPABILITYSET_HERE,
                   {"GET /TARN/FireControl/Control/detectorAlarm/capabilities?format=json\r\n"});
}

bool JsonConfigApp::SetDetectorSilence(JsonStatus& status, DetectorSilence command,
                                       unsigned int& error, const int first, const int second,
                                       const int userID)
{
    const auto body = [&] { return command.Make(); };
    if (second < 0) {
        return AskJson(status, error, userID, CAPABILITYSET_HERE,
                       {"PUT /TARN/FireControl/Control/detectorAlarm/", first, "?format=json\r\n"},
                       body, kPaddedBody);
    }
    return AskJson(
        status, error, userID, CAPABILITYSET_HERE,
        {"PUT /TARN/FireControl/Control/detectorAlarm/", first, "/", second, "?format=json\r\n"},
        body, kPaddedBody);
}

bool JsonConfigApp::GetManualFaceSnapCfg(ManualFaceSnapCfg& out, unsigned int& error,
                                         const int channel, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/channels/", SdkChannel{channel},
                    "/manualFaceSnap?format=json\r\n"});
}

bool JsonConfigApp::setManualPersonTrack(ManualPersonArmingTrack& track, unsigned int& error,
                                         const int channel, const int userID)
{
    // Kept: this line is sent without a line end.
    query::NoAnswer none;
    return AskJson(none, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/Intelligent/channels/", SdkChannel{channel},
                    "/manualPersonArmingTrack?format=json"},
                   [&] { return track.Make(); });
}

bool JsonConfigApp::SetMaunalClickThermomtry(JsonStatus& status, ManualClickThermometry thermometry,
                                             unsigned int& error, const int channel,
                                             const int userID)
{
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/Thermal/channels/", SdkChannel{channel},
                    "/clickToThermometry/rules/1?format=json\r\n"},
                   [&] { return thermometry.Make(); });
}

bool JsonConfigApp::GetManualPTDeicingCfg(ManualPTDeicingCfg& out, unsigned int& error,
                                          const int /*channel*/, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/System/Hardware/PTDeicing?format=json\r\n"});
}

bool JsonConfigApp::SetManualPTDeicingCfg(const ManualPTDeicingCfg& cfg, JsonStatus& status,
                                          unsigned int& error, const int /*channel*/,
                                          const int userID)
{
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/System/Hardware/PTDeicing?format=json\r\n"},
                   [&] { return cfg.Make(); });
}

bool JsonConfigApp::SearchPersonQueueCounting(const PersonQueueCountingDescription& description,
                                              PersonQueueCountingResult& out, unsigned int& error,
                                              const int channel, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/Intelligent/channels/", SdkChannel{channel},
                    "/personQueueDetection/queueCountingResult?format=json\r\n"},
                   [&] { return description.Make(); });
}

bool JsonConfigApp::SearchPersonQueueTime(const PersonQueueTimeDescription& description,
                                          PersonQueueTimeResult& out, unsigned int& error,
                                          const int channel, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/Intelligent/channels/", SdkChannel{channel},
                    "/personQueueDetection/queueTimeResult?format=json\r\n"},
                   [&] { return description.Make(); });
}

bool JsonConfigApp::GetCaptureSearchResult(CaptureSearchDescription& description,
                                           CaptureSearchResult& out, unsigned int& error,
                                           const int userID)
{
    // Kept: this line is sent without "?format=json".
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SDT/Face/captureSearch\r\n"},
                   [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::GetFDLibFCSearchByJson(FDLibSearchDescription& description,
                                           FDLibSearchResult& out, unsigned int& error,
                                           const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/Intelligent/FDLib/FCSearch?format=json\r\n"},
                   [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::SearchIntersectionAnalysis(const IntersectionAnalysisCondition& condition,
                                               IntersectionAnalysisResult& out, unsigned int& error,
                                               const int channel, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/Intelligent/channels/", SdkChannel{channel},
                    "/intersectionAnalysis/search?format=json\r\n"},
                   [&] { return condition.Make(); });
}

bool JsonConfigApp::SearchTargetFiles(TargetSearchDescription& description, TargetSearchResult& out,
                                      unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/ContentMgmt/SearchByTargetType?format=json\r\n"},
                   [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::getDataCenterResource(DataCenterTaskResult& out,
                                          const DataCenterTaskCond& condition, const int userID)
{
    // Kept: this line is sent without a line end.
    unsigned int error = 0;
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SDT/Management/Task/Video/monitorPort/search?format=json"},
                   [&] { return condition.Make(); });
}

bool JsonConfigApp::getDeeplyThinkBehaviorSearchResult(DeeplyThinkBehaviorDescription& description,
                                                       DeeplyThinkBehaviorSearch& out,
                                                       unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/SDT/Management/analysisResult/search?format=json\r\n"},
                   [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::GetFCDataPackageByJson(CaptureSearchDescription& description,
                                           tagNET_ORB_XML_CONFIG_OUTPUT& out, unsigned int& error,
                                           const int userID)
{
    // Kept: this line is sent without "?format=json".
    return query::DownloadPackage(out, error, userID, CAPABILITYSET_HERE,
                                  {"POST /TARN/SDT/Face/captureSearch/dataPackage\r\n"},
                                  [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::GetHFPDDataPackage(tagNET_ORB_XML_CONFIG_OUTPUT& out, std::string taskID,
                                       unsigned int& error, const int userID)
{
    return query::DownloadPackage(
        out, error, userID, CAPABILITYSET_HERE,
        {"GET /TARN/SDT/HFPD/search/dataPackage/", &taskID, "?format=json\r\n"});
}

bool JsonConfigApp::GetHFPDCaptureLibCollisionTask(HFPDCaptureLibCollisionTask& out,
                                                   unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SDT/HFPD/searchTask/captureLibCollision?format=json\r\n"});
}

bool JsonConfigApp::GetHFPDSearchProgress(HFPDSearchProgress& out, std::string taskID,
                                          unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/SDT/Management/Task/progress/", &taskID, "?format=json\r\n"});
}

bool JsonConfigApp::GetHFPDSearchRecordData(HFPDSearchFaceResult& out, std::string taskID,
                                            unsigned int& error, const int userID)
{
    return AskJson(
        out, error, userID, CAPABILITYSET_HERE,
        {"GET /TARN/SDT/HFPD/searchTask/result/recordData/", &taskID, "?format=json\r\n"});
}

bool JsonConfigApp::GetHFPDManagementTask(JsonStatus& status, int action, int task,
                                          unsigned int& error, const int userID)
{
    static constexpr const char* kLines[] = {
        "GET /TARN/SDT/Management/Task/pause/", "GET /TARN/SDT/Management/Task/resume/",
        "DELETE /TARN/SDT/Management/Task/",
        // Kept: devices expect the number right after the word.
        "GET /TARN/SDT/Management/Task/cancel"};
    if (action < 0 || action >= static_cast<int>(std::size(kLines))) {
        status = JsonStatus();
        error = query::kNotSupported;
        return false;
    }
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {kLines[action], task, "?format=json\r\n"});
}

bool JsonConfigApp::GetFDLibFCSearchDataPackageTaskID(FDLibSearchDescription& description,
                                                      FDLibFCSearchPackageByJsonResult& out,
                                                      unsigned int& error, const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/Intelligent/FDLib/FCSearch/dataPackage?format=json\r\n"},
                   [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::GetFDLibFCSearchDataPackage(FDLibFCSearchPackageByTaskID& out,
                                                std::string taskID, unsigned int& error,
                                                const int userID)
{
    // Kept: devices compare the task ID unescaped.
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/FDLib/FCSearch/dataPackage/progress?format=json&taskID=",
                    &taskID, "\r\n"});
}

bool JsonConfigApp::GetImagesComparision(ImagesCmpDescription& description, ImagesCmpResult& out,
                                         unsigned int& error, const int userID)
{
    // Kept: this line is sent without "?format=json".
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"POST /TARN/Intelligent/imagesComparision/face\r\n"},
                   [&] { return description.CreatJsonParser(); });
}

bool JsonConfigApp::GetIntersectionAnalysisConfig(IntersectionAnalysisConfig& out,
                                                  unsigned int& error, const int channel,
                                                  const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/channels/", SdkChannel{channel},
                    "/intersectionAnalysis?format=json\r\n"});
}

bool JsonConfigApp::GetAIOPModel(GetAIOPAlgorithmModel& out, unsigned int& error, const int userID)
{
    return AskJson(
        out, error, userID, CAPABILITYSET_HERE,
        {"GET /TARN/Intelligent/AIOpenPlatform/algorithmModel/management?format=json\r\n"});
}

bool JsonConfigApp::setMisinfoConfirmConfig(const MisinfoConfirm& confirm, JsonStatus& status,
                                            unsigned int& error, const int userID)
{
    return AskJson(status, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/Intelligent/misinfoFilter/confirmation?format=json\r\n"},
                   [&] { return confirm.Make(); });
}

bool JsonConfigApp::GetAudioDectioinCfg(CAudioDectionCfg& out, unsigned int& error,
                                        const int channel, const int userID)
{
    // Kept: the client's channel number is sent unconverted, and the line without a line end.
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/System/Audio/channels/", channel, "/Test?format=json"});
}

bool JsonConfigApp::SetAudioDectioinCfg(const CAudioDectionCfg& cfg, unsigned int& error,
                                        const int channel, const bool /*flag*/, const int userID)
{
    // Kept: the client's channel number is sent unconverted, and the line without a line end.
    query::NoAnswer none;
    return AskJson(none, error, userID, CAPABILITYSET_HERE,
                   {"PUT /TARN/System/Audio/channels/", channel, "/Test?format=json"},
                   [&] { return cfg.Make(); });
}

bool JsonConfigApp::PostAudioDetectionToAudioLib(const AudioImportAudioLibData& data,
                                                 AudioImportAudioLibResult& out,
                                                 unsigned int& error, const int& userID)
{
    return AskJson(
        out, error, userID, CAPABILITYSET_HERE,
        {"POST /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib?format=json\r\n"},
        [&] { return data.Make(); });
}

bool JsonConfigApp::GetAudioLibBaseConfig(AudioLibBaseConfig& out, unsigned int& error,
                                          const int& userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Intelligent/audioLib?format=json\r\n"});
}

bool JsonConfigApp::getFiberConvertSlotList(FiberConvertSlotList& out, unsigned int& error,
                                            const int userID)
{
    // Kept: this line is sent without a line end.
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Transfers/FiberConvert/slot?format=json"});
}

bool JsonConfigApp::getPortPoeInfoCfgList(PortPoeInfoList& out, unsigned int& error, int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Transfers/Switches/portCfg/portPOEInfo?format=json\r\n"});
}

bool JsonConfigApp::GetRadarAlarmLineConfiguration(AllAlarmLineCfg& out, unsigned int& error,
                                                   const int userID)
{
    return AskJson(out, error, userID, CAPABILITYSET_HERE,
                   {"GET /TARN/Radar/Configuration/alarmLineCfg?format=json\r\n"});
}

}  // namespace CapabilitySet
