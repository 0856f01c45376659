// The operations that configure, search and fetch, as rows; data packages aside.
// SPDX-License-Identifier: Apache-2.0
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
    JsonOperationRow row = JsonRow(name, std::move(ask), std::move(line), kStatus, text);
    row.keepsRecord = true;
    return row;
}

std::vector<JsonOperationRow> ControlRows()
{
    return {
        JSON_ROW(JsonConfigApp, GetManualFaceSnapCfg, ManualFaceSnapCfg, (out, err, 3, kUser),
                 "GET /TARN/Intelligent/channels/35/manualFaceSnap?format=json\r\n",
                 R"({"ManualFaceSnap": {"enabled": true}})"),
        InputRow("JsonConfigApp::setManualPersonTrack",
                 "PUT /TARN/Intelligent/channels/35/manualPersonArmingTrack?format=json", track,
                 kTrackText,
                 [](unsigned& err) {
                     return JsonConfigApp::setManualPersonTrack(track, err, 3, kUser);
                 }),
        JSON_ROW(JsonConfigApp, SetMaunalClickThermomtry, JsonStatus,
                 (out, Argument(click), err, 3, kUser),
                 "PUT /TARN/Thermal/channels/35/clickToThermometry/rules/1?format=json\r\n",
                 kStatus, kClickText),
        JSON_ROW(JsonConfigApp, GetManualPTDeicingCfg, ManualPTDeicingCfg, (out, err, 3, kUser),
                 "GET /TARN/System/Hardware/PTDeicing?format=json\r\n", kDeicingText),
        JSON_ROW(JsonConfigApp, SetManualPTDeicingCfg, JsonStatus, (deicing, out, err, 3, kUser),
                 "PUT /TARN/System/Hardware/PTDeicing?format=json\r\n", kStatus, kDeicingText),
        JSON_ROW(JsonConfigApp, GetAudioDectioinCfg, CAudioDectionCfg, (out, err, 3, kUser),
                 "GET /TARN/System/Audio/channels/3/Test?format=json", kAudioText),
        InputRow("JsonConfigApp::SetAudioDectioinCfg",
                 "PUT /TARN/System/Audio/channels/-3/Test?format=json", audio, kAudioText,
                 [](unsigned& err) {
                     return JsonConfigApp::SetAudioDectioinCfg(audio, err, -3, true, kUser);
                 }),
        JSON_ROW(JsonConfigApp, setMisinfoConfirmConfig, JsonStatus, (confirm, out, err, kUser),
                 "PUT /TARN/Intelligent/misinfoFilter/confirmation?format=json\r\n", kStatus,
                 kConfirmText),
        JSON_ROW(
            JsonConfigApp, PostAudioDetectionToAudioLib, AudioImportAudioLibResult,
            (import, out, err, kUser),
            "POST /TARN/Intelligent/AIOpenPlatform/audioDetection/importAudioLib?format=json\r\n",
            R"({"audioID": 9})", kImportText),
        JSON_QUERY_ROW(JsonConfigApp, GetAudioLibBaseConfig, AudioLibBaseConfig,
                       "GET /TARN/Intelligent/audioLib?format=json\r\n",
                       R"({"AudioLib": [{"id": 1}]})"),
        JSON_QUERY_ROW(JsonConfigApp, getFiberConvertSlotList, FiberConvertSlotList,
                       "GET /TARN/Transfers/FiberConvert/slot?format=json", R"({"slots": [1, 2]})"),
        JSON_QUERY_ROW(JsonConfigApp, getPortPoeInfoCfgList, PortPoeInfoList,
                       "GET /TARN/Transfers/Switches/portCfg/portPOEInfo?format=json\r\n",
                       R"({"PortPOEInfoList": [{"PortPOEInfo": {"id": 1}}]})"),
        JSON_QUERY_ROW(JsonConfigApp, GetRadarAlarmLineConfiguration, AllAlarmLineCfg,
                       "GET /TARN/Radar/Configuration/alarmLineCfg?format=json\r\n",
                       R"({"AlarmLine": [{"id": 1}]})"),
        JSON_ROW(JsonConfigApp, GetIntersectionAnalysisConfig, IntersectionAnalysisConfig,
                 (out, err, 3, kUser),
                 "GET /TARN/Intelligent/channels/35/intersectionAnalysis?format=json\r\n",
                 R"({"IntersectionAnalysis": {"enabled": true}})"),
        JSON_QUERY_ROW(
            JsonConfigApp, GetAIOPModel, GetAIOPAlgorithmModel,
            "GET /TARN/Intelligent/AIOpenPlatform/algorithmModel/management?format=json\r\n",
            R"({"models": [{"id": "m"}]})"),
    };
}

std::vector<JsonOperationRow> SearchRows()
{
    JsonOperationRow dataCentre =
        JSON_ROW(JsonConfigApp, getDataCenterResource, DataCenterTaskResult, (out, centre, kUser),
                 "POST /TARN/SDT/Management/Task/Video/monitorPort/search?format=json",
                 R"({"DataCenterTaskResult": {"progress": 1}})", kCentre);
    dataCentre.tellsError = false;
    return {
        std::move(dataCentre),
        JSON_ROW(JsonConfigApp, SearchPersonQueueCounting, PersonQueueCountingResult,
                 (queueCounts, out, err, 3, kUser),
                 "POST /TARN/Intelligent/channels/35/personQueueDetection/queueCountingResult"
                 "?format=json\r\n",
                 R"({"PersonQueueCountingResult": {"totalMatches": 1}})", kQueueCounts),
        JSON_ROW(JsonConfigApp, SearchPersonQueueTime, PersonQueueTimeResult,
                 (queueTimes, out, err, 3, kUser),
                 "POST /TARN/Intelligent/channels/35/personQueueDetection/queueTimeResult"
                 "?format=json\r\n",
                 R"({"PersonQueueTimeResult": {"numOfMatches": 1}})", kQueueTimes),
        JSON_ROW(JsonConfigApp, GetCaptureSearchResult, CaptureSearchResult,
                 (captures, out, err, kUser), "POST /TARN/SDT/Face/captureSearch\r\n",
                 R"({"CaptureSearchResult": {"targets": [{"id": "1", "face_rect": {"x": 0.5}}]}})",
                 kCaptures),
        JSON_ROW(
            JsonConfigApp, GetFDLibFCSearchByJson, FDLibSearchResult, (library, out, err, kUser),
            "POST /TARN/Intelligent/FDLib/FCSearch?format=json\r\n",
            R"({"FDLibSearchResult": {"MatchList": [{"human_data": [{"FDID": "1"}]}]}})", kLibrary),
        JSON_ROW(JsonConfigApp, SearchIntersectionAnalysis, IntersectionAnalysisResult,
                 (intersection, out, err, 3, kUser),
                 "POST /TARN/Intelligent/channels/35/intersectionAnalysis/search?format=json\r\n",
                 R"({"IntersectionAnalysisResult": {"responseStatusStrg": "OK"}})", kIntersection),
        JSON_ROW(JsonConfigApp, SearchTargetFiles, TargetSearchResult, (targets, out, err, kUser),
                 "POST /TARN/ContentMgmt/SearchByTargetType?format=json\r\n",
                 R"({"TargetSearchResult": {"numOfMatches": 1, "files": []}})", kTargets),
        JSON_ROW(JsonConfigApp, getDeeplyThinkBehaviorSearchResult, DeeplyThinkBehaviorSearch,
                 (behavior, out, err, kUser),
                 "POST /TARN/SDT/Management/analysisResult/search?format=json\r\n",
                 R"({"SearchResult": {"progress": 50}})", kBehavior),
        JSON_ROW(JsonConfigApp, GetImagesComparision, ImagesCmpResult, (images, out, err, kUser),
                 "POST /TARN/Intelligent/imagesComparision/face\r\n", R"({"similarity": 0.9})",
                 kImages),
    };
}

std::vector<JsonOperationRow> TaskRows()
{
    std::vector<JsonOperationRow> rows{
        JSON_QUERY_ROW(JsonConfigApp, GetHFPDCaptureLibCollisionTask, HFPDCaptureLibCollisionTask,
                       "GET /TARN/SDT/HFPD/searchTask/captureLibCollision?format=json\r\n",
                       R"({"taskID": 12})"),
        JSON_ROW(JsonConfigApp, GetHFPDSearchProgress, HFPDSearchProgress, (out, "1 2", err, kUser),
                 "GET /TARN/SDT/Management/Task/progress/1 2?format=json\r\n",
                 R"({"progress": {"value": 40}})"),
        JSON_ROW(JsonConfigApp, GetHFPDSearchRecordData, HFPDSearchFaceResult,
                 (out, "12", err, kUser),
                 "GET /TARN/SDT/HFPD/searchTask/result/recordData/12?format=json\r\n",
                 R"({"HFPDSearchFaceResult": {"numOfMatches": 1}})"),
        JSON_ROW(JsonConfigApp, GetFDLibFCSearchDataPackageTaskID, FDLibFCSearchPackageByJsonResult,
                 (library, out, err, kUser),
                 "POST /TARN/Intelligent/FDLib/FCSearch/dataPackage?format=json\r\n",
                 R"({"taskID": "p"})", kLibrary),
        JSON_ROW(JsonConfigApp, GetFDLibFCSearchDataPackage, FDLibFCSearchPackageByTaskID,
                 (out, "a b&c", err, kUser),
                 "GET /TARN/Intelligent/FDLib/FCSearch/dataPackage/progress?format=json&taskID=a "
                 "b&c\r\n",
                 R"({"progress": 100, "URL": "/p.zip"})"),
    };
#define TASK_ROW(action, start)                                                               \
    JSON_ROW(JsonConfigApp, GetHFPDManagementTask, JsonStatus, (out, action, 12, err, kUser), \
             start "12?format=json\r\n", kStatus)
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
    for (auto& table : {ControlRows(), SearchRows(), TaskRows()}) {
        all.insert(all.end(), table.begin(), table.end());
    }
    return all;
}

}  // namespace TestSupport
