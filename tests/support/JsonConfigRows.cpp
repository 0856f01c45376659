// The operations that configure, search and fetch, as rows; data packages aside.
// SPDX-License-Identifier: Apache-2.0
#include <json/reader.h>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "support/JsonOperations.h"

namespace TestSupport
{
namespace
{

using namespace CapabilitySet;

constexpr const char* kStatus = R"({"statusCode": 6, "subStatusCode": "badParameters"})";

// Made ahead: an argument is its caller's memory, not the operation's.

template <class Description>
Description Read(const char* text)
{
    return Description(std::string(text));
}

/// An argument that is passed by value.
template <class Record>
Record Argument(const Record& record)
{
    const NoAllocationFaults pause;
    return record;
}

/// What a search writes for a page, and for what else it was given.
std::string PageBody(const std::string& key, const std::string& more)
{
    return "{\"" + key + R"(": {"searchID": "a", "searchResultPosition": 0, "maxResults": 30, )" +
           more + "}}";
}

const std::string kQueueCounts = PageBody("PersonQueueCountingDescription", R"("regionID": 1)");
const std::string kQueueTimes = PageBody("PersonQueueTimeDescription", R"("regionID": 2)");
const std::string kCaptures = PageBody(
    "CaptureSearchDescription",
    R"("maxSearchResults": 90, "startTime": "s", "endTime": "e", "channelID": [1], "ageGroup": "",
       "choiceChannel": "", "gender": "", "glasses": "", "smile": "", "mask": "no", "beard": "",
       "faceExpression": "", "ethnic": "", "isInLibrary": "", "thermometryUnit": "",
       "currTemperature": 0.0, "temperatureCondition": "")");
const std::string kLibrary =
    PageBody("FDLibSearchDescription", R"("maxResultNumber": 5, "searchType": "name", "x": [])");
const std::string kIntersection =
    PageBody("IntersectionAnalysisCondition", R"("reportType": "daily")");
const std::string kTargets = PageBody("TargetSearchDescription", R"("targetType": "human")");
const std::string kCentre = PageBody("DataCenterTaskCond", R"("monitorPort": "p")");
const std::string kBehavior =
    PageBody("SearchDescription", R"("startTime": "s", "endTime": "e", "taskID": 4)");
constexpr const char* kImages = R"({"imagesComparision": {"dataType": "URL", "URLs": ["a%d"]}})";
constexpr const char* kTrackText = R"({"ManualPersonArmingTrack": {"point": {"x": 0.5}}})";
constexpr const char* kClickText = R"({"ManualClickThermometry": {"x": 12}})";
constexpr const char* kAudioText = R"({"AudioDetection": {"sensitivity": 50}})";
constexpr const char* kDeicingText = R"({"PTDeicing": {"enabled": true}})";
constexpr const char* kConfirmText =
    R"({"misinfoConfirm": {"eventType": "fall", "state": "misinfo", "eventID": 3}})";
constexpr const char* kImportText =
    R"({"ImportAudioLib": {"SourceData": {"UUID": "u"}, "DestinationData": {"audioLibID": "1",
        "audioSampleID": "", "audioID": "", "sampleName": "glass", "sampleType": ""}}})";

auto queueCounts = Read<PersonQueueCountingDescription>(kQueueCounts.c_str());
auto queueTimes = Read<PersonQueueTimeDescription>(kQueueTimes.c_str());
auto captures = Read<CaptureSearchDescription>(kCaptures.c_str());
auto library = Read<FDLibSearchDescription>(kLibrary.c_str());
auto intersection = Read<IntersectionAnalysisCondition>(kIntersection.c_str());
auto targets = Read<TargetSearchDescription>(kTargets.c_str());
auto centre = Read<DataCenterTaskCond>(kCentre.c_str());
auto behavior = Read<DeeplyThinkBehaviorDescription>(kBehavior.c_str());
auto images = Read<ImagesCmpDescription>(kImages);
auto track = Read<ManualPersonArmingTrack>(kTrackText);
auto click = Read<ManualClickThermometry>(kClickText);
auto audio = Read<CAudioDectionCfg>(kAudioText);
auto deicing = Read<ManualPTDeicingCfg>(kDeicingText);
auto confirm = Read<MisinfoConfirm>(kConfirmText);
auto import = Read<AudioImportAudioLibData>(kImportText);

JsonOperationRow Row(const char* name, std::string line, const char* answer,
                     std::function<JsonAnswered(const char*)> ask, const std::string& body = {})
{
    Json::Value tree;
    const bool hasBody = !body.empty() && Json::Reader().parse(body, tree);
    const bool converts = line.find("/channels/35/") != std::string::npos;
    return {.name = name,
            .file = "JsonConfig/JsonConfigApp.cpp",
            .line = std::move(line),
            .answer = answer,
            .ask = std::move(ask),
            .body = hasBody ? tree.toStyledString() : body,
            .convertsChannel = converts};
}

/// An operation whose answer nobody reads: its record is an input that stays as it was.
template <class Record, class Query>
JsonOperationRow InputRow(const char* name, std::string line, Record& input, const char* text,
                          Query query)
{
    auto ask = [&input, text, query](const char* before) {
        JsonAnswered answered{.err = 77};
        answered.result = query(answered.err);
        const NoAllocationFaults pause;
        answered.isFilled = *before != '\0' && IsSame(input, Read<Record>(text));
        return answered;
    };
    JsonOperationRow row = Row(name, std::move(line), kStatus, std::move(ask), text);
    row.keepsRecord = true;
    return row;
}

std::vector<JsonOperationRow> ControlRows()
{
    return {
        Row("JsonConfigApp::GetManualFaceSnapCfg",
            "GET /TARN/Intelligent/channels/35/manualFaceSnap?format=json\r\n",
            R"({"ManualFaceSnap": {"enabled": true}})",
            ASK_JSON(ManualFaceSnapCfg, JsonConfigApp::GetManualFaceSnapCfg(out, err, 3, kUser))),
        InputRow("JsonConfigApp::setManualPersonTrack",
                 "PUT /TARN/Intelligent/channels/35/manualPersonArmingTrack?format=json", track,
                 kTrackText,
                 [](unsigned& err) {
                     return JsonConfigApp::setManualPersonTrack(track, err, 3, kUser);
                 }),
        Row("JsonConfigApp::SetMaunalClickThermomtry",
            "PUT /TARN/Thermal/channels/35/clickToThermometry/rules/1?format=json\r\n", kStatus,
            ASK_JSON(JsonStatus,
                     JsonConfigApp::SetMaunalClickThermomtry(out, Argument(click), err, 3, kUser)),
            kClickText),
        Row("JsonConfigApp::GetManualPTDeicingCfg",
            "GET /TARN/System/Hardware/PTDeicing?format=json\r\n", kDeicingText,
            ASK_JSON(ManualPTDeicingCfg, JsonConfigApp::GetManualPTDeicingCfg(out, err, 3, kUser))),
        Row("JsonConfigApp::SetManualPTDeicingCfg",
            "PUT /TARN/System/Hardware/PTDeicing?format=json\r\n", kStatus,
            ASK_JSON(JsonStatus, JsonConfigApp::SetManualPTDeicingCfg(deicing, out, err, 3, kUser)),
            kDeicingText),
        Row("JsonConfigApp::GetAudioDectioinCfg",
            "GET /TARN/System/Audio/channels/3/Test?format=json", kAudioText,
            ASK_JSON(CAudioDectionCfg, JsonConfigApp::GetAudioDectioinCfg(out, err, 3, kUser))),
        InputRow("JsonConfigApp::SetAudioDectioinCfg",
                 "PUT /TARN/System/Audio/channels/-3/Test?format=json", audio, kAudioText,
                 [](unsigned& err) {
                     return JsonConfigApp::SetAudioDectioinCfg(audio, err, -3, true, kUser);
                 }),
        Row("JsonConfigApp::setMisinfoConfirmConfig",
            "PUT /TARN/Intelligent/misinfoFilter/confirmation?format=json\r\n", kStatus,
            ASK_JSON(JsonStatus, JsonConfigApp::setMisinfoConfirmConfig(confirm, out, err, kUser)),
            kConfirmText),
        Row("JsonConfigApp::PostAudioDetectionToAudioLib",
            "POST /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib?format=json\r\n",
            R"({"audioID": 9})",
            ASK_JSON(AudioImportAudioLibResult,
                     JsonConfigApp::PostAudioDetectionToAudioLib(import, out, err, kUser)),
            kImportText),
        Row("JsonConfigApp::GetAudioLibBaseConfig",
            "GET /TARN/Intelligent/audioLib?format=json\r\n", R"({"AudioLib": [{"id": 1}]})",
            ASK_JSON(AudioLibBaseConfig, JsonConfigApp::GetAudioLibBaseConfig(out, err, kUser))),
        Row("JsonConfigApp::getFiberConvertSlotList",
            "GET /TARN/Transfers/FiberConvert/slot?format=json", R"({"slots": [1, 2]})",
            ASK_JSON(FiberConvertSlotList,
                     JsonConfigApp::getFiberConvertSlotList(out, err, kUser))),
        Row("JsonConfigApp::getPortPoeInfoCfgList",
            "GET /TARN/Transfers/Switches/portCfg/portPOEInfo?format=json\r\n",
            R"({"PortPOEInfoList": [{"PortPOEInfo": {"id": 1}}]})",
            ASK_JSON(PortPoeInfoList, JsonConfigApp::getPortPoeInfoCfgList(out, err, kUser))),
        Row("JsonConfigApp::GetRadarAlarmLineConfiguration",
            "GET /TARN/Radar/Configuration/alarmLineCfg?format=json\r\n",
            R"({"AlarmLine": [{"id": 1}]})",
            ASK_JSON(AllAlarmLineCfg,
                     JsonConfigApp::GetRadarAlarmLineConfiguration(out, err, kUser))),
        Row("JsonConfigApp::GetIntersectionAnalysisConfig",
            "GET /TARN/Intelligent/channels/35/intersectionAnalysis?format=json\r\n",
            R"({"IntersectionAnalysis": {"enabled": true}})",
            ASK_JSON(IntersectionAnalysisConfig,
                     JsonConfigApp::GetIntersectionAnalysisConfig(out, err, 3, kUser))),
        Row("JsonConfigApp::GetAIOPModel",
            "GET /TARN/Intelligent/AIOpenPlatform/algorithmModel/management?format=json\r\n",
            R"({"models": [{"id": "m"}]})",
            ASK_JSON(GetAIOPAlgorithmModel, JsonConfigApp::GetAIOPModel(out, err, kUser))),
    };
}

std::vector<JsonOperationRow> SearchRows()
{
    JsonOperationRow dataCentre = Row(
        "JsonConfigApp::getDataCenterResource",
        "POST /TARN/SDT/Management/Task/Video/monitorPort/search?format=json",
        R"({"DataCenterTaskResult": {"progress": 1}})",
        ASK_JSON(DataCenterTaskResult, JsonConfigApp::getDataCenterResource(out, centre, kUser)),
        kCentre);
    dataCentre.tellsError = false;
    return {
        std::move(dataCentre),
        Row("JsonConfigApp::SearchPersonQueueCounting",
            "POST /TARN/Intelligent/channels/35/personQueueDetection/queueCountingResult"
            "?format=json\r\n",
            R"({"PersonQueueCountingResult": {"totalMatches": 1}})",
            ASK_JSON(PersonQueueCountingResult,
                     JsonConfigApp::SearchPersonQueueCounting(queueCounts, out, err, 3, kUser)),
            kQueueCounts),
        Row("JsonConfigApp::SearchPersonQueueTime",
            "POST /TARN/Intelligent/channels/35/personQueueDetection/queueTimeResult"
            "?format=json\r\n",
            R"({"PersonQueueTimeResult": {"numOfMatches": 1}})",
            ASK_JSON(PersonQueueTimeResult,
                     JsonConfigApp::SearchPersonQueueTime(queueTimes, out, err, 3, kUser)),
            kQueueTimes),
        Row("JsonConfigApp::GetCaptureSearchResult", "POST /TARN/SDT/Face/captureSearch\r\n",
            R"({"CaptureSearchResult": {"targets": [{"id": "1", "face_rect": {"x": 0.5}}]}})",
            ASK_JSON(CaptureSearchResult,
                     JsonConfigApp::GetCaptureSearchResult(captures, out, err, kUser)),
            kCaptures),
        Row("JsonConfigApp::GetFDLibFCSearchByJson",
            "POST /TARN/Intelligent/FDLib/FCSearch?format=json\r\n",
            R"({"FDLibSearchResult": {"MatchList": [{"human_data": [{"FDID": "1"}]}]}})",
            ASK_JSON(FDLibSearchResult,
                     JsonConfigApp::GetFDLibFCSearchByJson(library, out, err, kUser)),
            kLibrary),
        Row("JsonConfigApp::SearchIntersectionAnalysis",
            "POST /TARN/Intelligent/channels/35/intersectionAnalysis/search?format=json\r\n",
            R"({"IntersectionAnalysisResult": {"responseStatusStrg": "OK"}})",
            ASK_JSON(IntersectionAnalysisResult,
                     JsonConfigApp::SearchIntersectionAnalysis(intersection, out, err, 3, kUser)),
            kIntersection),
        Row("JsonConfigApp::SearchTargetFiles",
            "POST /TARN/ContentMgmt/SearchByTargetType?format=json\r\n",
            R"({"TargetSearchResult": {"numOfMatches": 1, "files": []}})",
            ASK_JSON(TargetSearchResult,
                     JsonConfigApp::SearchTargetFiles(targets, out, err, kUser)),
            kTargets),
        Row("JsonConfigApp::getDeeplyThinkBehaviorSearchResult",
            "POST /TARN/SDT/Management/analysisResult/search?format=json\r\n",
            R"({"SearchResult": {"progress": 50}})",
            ASK_JSON(DeeplyThinkBehaviorSearch,
                     JsonConfigApp::getDeeplyThinkBehaviorSearchResult(behavior, out, err, kUser)),
            kBehavior),
        Row("JsonConfigApp::GetImagesComparision",
            "POST /TARN/Intelligent/imagesComparision/face\r\n", R"({"similarity": 0.9})",
            ASK_JSON(ImagesCmpResult, JsonConfigApp::GetImagesComparision(images, out, err, kUser)),
            kImages),
    };
}

std::vector<JsonOperationRow> TaskRows()
{
    std::vector<JsonOperationRow> rows{
        Row("JsonConfigApp::GetHFPDCaptureLibCollisionTask",
            "GET /TARN/SDT/HFPD/searchTask/captureLibCollision?format=json\r\n",
            R"({"taskID": 12})",
            ASK_JSON(HFPDCaptureLibCollisionTask,
                     JsonConfigApp::GetHFPDCaptureLibCollisionTask(out, err, kUser))),
        Row("JsonConfigApp::GetHFPDSearchProgress",
            "GET /TARN/SDT/Management/Task/progress/1 2?format=json\r\n",
            R"({"progress": {"value": 40}})",
            ASK_JSON(HFPDSearchProgress,
                     JsonConfigApp::GetHFPDSearchProgress(out, "1 2", err, kUser))),
        Row("JsonConfigApp::GetHFPDSearchRecordData",
            "GET /TARN/SDT/HFPD/searchTask/result/recordData/12?format=json\r\n",
            R"({"HFPDSearchFaceResult": {"numOfMatches": 1}})",
            ASK_JSON(HFPDSearchFaceResult,
                     JsonConfigApp::GetHFPDSearchRecordData(out, "12", err, kUser))),
        Row("JsonConfigApp::GetFDLibFCSearchDataPackageTaskID",
            "POST /TARN/Intelligent/FDLib/FCSearch/dataPackage?format=json\r\n",
            R"({"taskID": "p"})",
            ASK_JSON(FDLibFCSearchPackageByJsonResult,
                     JsonConfigApp::GetFDLibFCSearchDataPackageTaskID(library, out, err, kUser)),
            kLibrary),
        Row("JsonConfigApp::GetFDLibFCSearchDataPackage",
            "GET /TARN/Intelligent/FDLib/FCSearch/dataPackage/progress?format=json&taskID=a "
            "b&c\r\n",
            R"({"progress": 100, "URL": "/p.zip"})",
            ASK_JSON(FDLibFCSearchPackageByTaskID,
                     JsonConfigApp::GetFDLibFCSearchDataPackage(out, "a b&c", err, kUser))),
    };
#define TASK_ROW(action, start)                                                      \
    Row("JsonConfigApp::GetHFPDManagementTask", start "12?format=json\r\n", kStatus, \
        ASK_JSON(JsonStatus, JsonConfigApp::GetHFPDManagementTask(out, action, 12, err, kUser)))
    rows.push_back(TASK_ROW(0, "GET /TARN/SDT/Management/Task/pause/"));
    rows.push_back(TASK_ROW(1, "GET /TARN/SDT/Management/Task/resume/"));
    rows.push_back(TASK_ROW(2, "DELETE /TARN/SDT/Management/Task/"));
    rows.push_back(TASK_ROW(3, "GET /TARN/SDT/Management/Task/cancel"));
#undef TASK_ROW
    return rows;
}

}  // namespace

std::vector<JsonOperationRow> JsonConfigRows()
{
    std::vector<JsonOperationRow> all;
    for (auto& table : {ControlRows(), SearchRows(), TaskRows()})
        all.insert(all.end(), table.begin(), table.end());
    return all;
}

}  // namespace TestSupport
