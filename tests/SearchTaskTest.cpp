// Searches, search tasks and packages of simulated devices, and an answer to every JSON request.
// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <random>
#include <thread>

#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Device/Package.h"
#include "support/DeviceSteps.h"

using namespace CapabilitySet;
using testing::HasSubstr;
using TestSupport::Asked;
using TestSupport::AskJson;
using TestSupport::LoadDevice;
using TestSupport::Play;

namespace
{

struct Line
{
    const char* profile;
    const char* method;
    const char* target;
    const char* body;
    const char* key;  // in the answer
};

constexpr Line kLines[] = {
    {"recorder", "GET", "Intelligent/imagesComparision/face/capabilities", "", "imagesComparision"},
    {"recorder", "GET", "SDT/HFPD/capabilities", "", "HFPDCap"},
    {"alarmhost", "GET", "SecurityCP/capabilities", "", "SecurityCPCap"},
    {"alarmhost", "GET", "SecurityCP/control/capabilities", "", "HostControlCap"},
    {"alarmhost", "GET", "SecurityCP/status/capabilities", "", "HostStatusCap"},
    {"dome", "GET", "Intelligent/channels/1/intersectionAnalysis/capabilities", "", "TagID"},
    {"switch", "GET", "Transfers/FiberConvert/capabilities", "", "FiberConvertCap"},
    {"switch", "GET", "Transfers/Switches/portCfg/portPOEInfo/capabilities", "",
     "PortPOEInfoListCap"},
    {"recorder", "GET", "Intelligent/cityManagement/search/capabilities", "", "maxResultNumber"},
    {"recorder", "GET", "SDT/Management/analysisResult/capabilities", "", "SearchCap"},
    {"recorder", "GET", "Intelligent/misinfoFilter/confirmation/capabilities", "",
     "misinfoConfirmCap"},
    {"recorder", "GET", "Intelligent/AIOpenPlatform/audioDetectionSearch/capabilities", "",
     "AudioDetectionSearchCap"},
    {"recorder", "GET", "Intelligent/AIOpenPlatform/audioDetection/importAudioLib/capabilities", "",
     "DestinationData"},
    {"dome", "GET", "Intelligent/channels/1/manualFaceSnap", "", "ManualFaceSnap"},
    {"dome", "PUT", "Intelligent/channels/1/manualPersonArmingTrack",
     R"({"ManualPersonArmingTrack": {}})", "statusCode"},
    {"dome", "POST", "Intelligent/channels/1/personQueueDetection/queueCountingResult", "{}",
     "PersonQueueCountingResult"},
    {"dome", "POST", "Intelligent/channels/1/personQueueDetection/queueTimeResult", "{}",
     "PersonQueueTimeResult"},
    {"recorder", "POST", "SDT/Face/captureSearch", "{}", "targets"},
    {"recorder", "POST", "Intelligent/imagesComparision/face", "{}", "similarity"},
    {"recorder", "GET", "SDT/HFPD/searchTask/result/recordData/12", "", "HFPDSearchFaceResult"},
    {"recorder", "GET", "SDT/Management/Task/pause/12", "", "\"ok\""},
    {"recorder", "GET", "SDT/Management/Task/resume/12", "", "\"ok\""},
    {"recorder", "GET", "SDT/Management/Task/progress/12", "", "progress"},
    {"recorder", "GET", "SDT/Management/Task/cancel12", "", "\"ok\""},
    {"recorder", "DELETE", "SDT/Management/Task/12", "", "\"ok\""},
    {"recorder", "POST", "Intelligent/FDLib/FCSearch", "{}", "abnormalRate "},
    {"recorder", "POST", "Intelligent/FDLib/FCSearch/dataPackage", "{}", "taskID"},
    {"recorder", "GET", "Intelligent/FDLib/FCSearch/dataPackage/progress?taskID=pkg-1K", "", "URL"},
    {"recorder", "GET", "SDT/HFPD/searchTask/captureLibCollision", "", "taskID"},
    {"dome", "PUT", "Thermal/channels/1/clickToThermometry/rules/1",
     R"({"ManualClickThermometry": {}})", "statusCode"},
    {"dome", "GET", "Intelligent/channels/1/intersectionAnalysis", "", "IntersectionAnalysis"},
    {"dome", "POST", "Intelligent/channels/1/intersectionAnalysis/search", "{}", "MatchList"},
    {"recorder", "GET", "Intelligent/AIOpenPlatform/algorithmModel/management", "",
     "AlgorithmModelList"},
    {"dome", "GET", "System/Audio/channels/1/Test", "", "AudioTest"},
    {"dome", "PUT", "System/Audio/channels/1/Test", R"({"AudioTest": {}})", "statusCode"},
    {"switch", "GET", "Transfers/FiberConvert/slot", "", "FiberConvertSlotList"},
    {"switch", "GET", "Transfers/Switches/portCfg/portPOEInfo", "", "PortPOEInfo"},
    {"dome", "GET", "System/Hardware/PTDeicing", "", "PTDeicing"},
    {"dome", "PUT", "System/Hardware/PTDeicing", R"({"PTDeicing": {}})", "statusCode"},
    {"alarmhost", "GET", "Radar/Configuration/alarmLineCfg", "", "AlarmLineCfg"},
    {"recorder", "POST", "ContentMgmt/SearchByTargetType", "{}", "TargetSearchResult"},
    {"recorder", "POST", "SDT/Management/Task/Video/monitorPort/search", "{}",
     "DataCenterTaskResult"},
    {"recorder", "POST", "SDT/Management/analysisResult/search", "{}", "SearchResult"},
    {"recorder", "PUT", "Intelligent/misinfoFilter/confirmation",
     R"({"misinfoConfirm": {"eventType": "motion", "state": "wrong"}})", "statusCode"},
    {"recorder", "POST", "Intelligent/AIOpenPlatform/audioDetection/importAudioLib", "{}",
     "audioID"},
    {"recorder", "GET", "Intelligent/audioLib", "", "AudioLib"},
    {"alarmhost", "GET", "SecurityCP/status/communication", "", "CommuniStatus"},
    {"alarmhost", "GET", "SecurityCP/status/batteries", "", "BatteryList"},
    {"alarmhost", "GET", "FireControl/Status/detectorStatus", "", "DetectorStatus"},
    {"alarmhost", "GET", "FireControl/Control/detectorAlarm/capabilities", "", "DetectorAlarmCap"},
};

TEST(SearchTask, EveryJsonRequestHasAnAnswerFromTheDeviceThatShouldGiveIt)
{
    std::map<std::string, std::shared_ptr<Device::DeviceModel>> devices;
    for (const Line& line : kLines) {
        auto& device = devices[line.profile];
        device = device ? device : LoadDevice(line.profile);
        SCOPED_TRACE(line.profile);
        Play(*device, {{line.method, line.target, line.body, 200, line.key}});
    }
    // These two are asked without "format=json".
    auto& recorder = *devices["recorder"];
    EXPECT_EQ(recorder.Handle({"POST", "/TARN/SDT/Face/captureSearch", "{}"}).status, 200);
    EXPECT_EQ(recorder.Handle({"POST", "/TARN/Intelligent/imagesComparision/face", "{}"}).status,
              200);
}

TEST(SearchTask, SearchesFilterAndTheirPagesAddUp)
{
    const auto recorder = LoadDevice("recorder");
    struct Case
    {
        const char* path;
        const char* root;
        const char* list;
        std::string conditions;
        size_t total;
    };
    for (const Case& search : std::vector<Case>{
             {"SDT/Face/captureSearch", "CaptureSearchResult", "targets", "", 180},
             {"SDT/Face/captureSearch", "CaptureSearchResult", "targets",
              R"("gender": "female", "mask": "", "currTemperature": 0.0,)", 90},
             {"SDT/Face/captureSearch", "CaptureSearchResult", "targets", R"("channelID": [1, 3],)",
              72},
             {"SDT/Face/captureSearch", "CaptureSearchResult", "targets",
              R"("startTime": "2026-11-19T14:00:00+08:00", "endTime": "2026-11-19T06:14:00Z",)", 3},
             {"SDT/Face/captureSearch", "CaptureSearchResult", "targets", R"("gender": "neither",)",
              0},
             {"SDT/Face/captureSearch", "CaptureSearchResult", "targets",
              R"("maxSearchResults": 25,)", 25},
             {"ContentMgmt/SearchByTargetType", "TargetSearchResult", "MatchList",
              R"("targetType": ["animal", "vehicle"],)", 96}}) {
        size_t seen = 0;
        Json::Value page;
        do {
            const Json::Value answer = AskJson(
                *recorder, "POST", search.path,
                R"({"Description": {"searchID": "s", "maxResults": 20,)" + search.conditions +
                    R"("searchResultPosition": )" + std::to_string(seen) + "}}");
            page = answer[search.root];
            EXPECT_EQ(page["searchID"], "s");
            EXPECT_EQ(page["numOfMatches"].asUInt(), page[search.list].size());
            EXPECT_EQ(page["totalMatches"].asUInt(), search.total) << search.conditions;
            seen += page[search.list].size();
        } while (page["responseStatusStrg"] == "MORE" && seen < 1000);
        EXPECT_EQ(seen, search.total) << search.path << search.conditions;
        EXPECT_EQ(page["responseStatusStrg"], search.total == 0 ? "NO MATCHES" : "OK");
    }
    Play(*recorder, {{"POST", "SDT/Face/captureSearch", R"({"maxResults": -1})", 400, "badJson"},
                     {"POST", "SDT/Face/captureSearch", R"({"startTime": "now"})", 400, "badJson"},
                     {"POST", "SDT/Face/captureSearch", "[]", 400, "badJsonContent"},
                     {"POST", "SDT/Face/captureSearch", "{", 400, "badJsonFormat"}});
}

TEST(SearchTask, TasksProgressWhenLookedAtAndObeyOnlyWhatFitsTheirState)
{
    const auto recorder = LoadDevice("recorder");
    const std::string task = "SDT/Management/Task/";
    const auto progress = [&] {
        return AskJson(*recorder, "GET", task + "progress/12")["progress"]["value"].asInt();
    };
    const auto found = [&] {
        return AskJson(*recorder, "GET",
                       "SDT/HFPD/searchTask/result/recordData/12")["HFPDSearchFaceResult"]
                                                                  ["numOfMatches"]
                                                                      .asInt();
    };
    EXPECT_EQ(progress(), 25);
    EXPECT_EQ(found(), 20);
    Play(*recorder, {{"GET", task + "resume/12", "", 200, "wrongTaskState"},
                     {"GET", task + "pause/12", "", 200, "\"ok\""},
                     {"GET", task + "pause/12", "", 200, "wrongTaskState"}});
    EXPECT_EQ(progress(), 25);
    Play(*recorder, {{"GET", "SDT/HFPD/search/dataPackage/12", "", 400, "taskNotFinished"},
                     {"GET", task + "resume/12", "", 200, "\"ok\""}});
    EXPECT_EQ(progress() + progress() + progress() + progress(), 50 + 75 + 100 + 100);
    EXPECT_EQ(found(), 80);
    Play(*recorder, {{"GET", task + "cancel/12", "", 200, "wrongTaskState"},
                     {"GET", "SDT/HFPD/search/dataPackage/12", "", 200, ""},
                     {"GET", task + "cancel13", "", 200, "\"ok\""},
                     {"GET", task + "progress/13", "", 200, "cancelled"},
                     {"DELETE", task + "13", "", 200, "\"ok\""},
                     {"DELETE", task + "13", "", 400, "invalidID"},
                     {"GET", task + "progress/13", "", 400, "invalidID"},
                     {"GET", task + "pause/x", "", 400, "invalidID"},
                     {"PUT", task + "pause/12", "", 405, "methodNotAllowed"}});
    const std::string collision =
        AskJson(*recorder, "GET", "SDT/HFPD/searchTask/captureLibCollision")["taskID"].asString();
    const std::string own =
        AskJson(*recorder, "POST", "SDT/HFPD/searchTask", "{}")["taskID"].asString();
    EXPECT_NE(collision, own);
    Play(*recorder,
         {{"GET", task + "progress/" + own, "", 200, "25"},
          {"GET", "SDT/HFPD/searchTask/captureLibCollision", "", 200, collision.c_str()}});
}

std::string Read(Device::BodySource& source, size_t block)
{
    std::string text;
    std::string part(block, '\0');
    while (const size_t count = source.Read(part.data(), block)) {
        text.append(part, 0, count);
    }
    return text;
}

TEST(SearchTask, PackagesAreWholeHoweverTheyAreReadAndShowEveryChange)
{
    for (const std::uint64_t size : {0, 39, 40, 41, 47, 48, 70000, 1 << 20}) {
        const std::string text = Read(*Device::MakePackage(size, "a"), 1 << 16);
        EXPECT_EQ(text.size(), std::max<std::uint64_t>(size, 40));
        EXPECT_TRUE(Device::IsWholePackage(text)) << size;
        EXPECT_EQ(Read(*Device::MakePackage(size, "a"), 7), text);
        EXPECT_FALSE(Device::IsWholePackage(text.substr(0, text.size() - 1)));
        std::string changed = text;
        changed[text.size() / 2] = static_cast<char>(changed[text.size() / 2] ^ 1);
        EXPECT_FALSE(Device::IsWholePackage(changed)) << size;
    }
    EXPECT_EQ(Device::PackageSizeOf("pkg-50M"), 50u << 20);
    EXPECT_EQ(Device::PackageSizeOf("pkg-4G"), Device::kLargestPackage);
    for (const char* name :
         {"pkg-5G", "pkg-", "pkg-M", "pkg-1T", "pkg--1", "50M", "pkg-99999999999999999999M"}) {
        EXPECT_EQ(Device::PackageSizeOf(name), std::nullopt) << name;
    }
}

// Downloads through the library and frees what it got.
std::string Download(bool ok, tagNET_ORB_XML_CONFIG_OUTPUT& out)
{
    const std::unique_ptr<char[]> buffer(static_cast<char*>(out.outBuffer));
    return ok ? std::string(buffer.get(), out.returnedSize) : std::string();
}

TEST(SearchTask, TheLibraryDownloadsPackagesOfEverySizeUpToItsLimit)
{
    const Asked recorder("sim:recorder");
    unsigned error = 0;
    for (const auto& [task, size] : {std::pair<const char*, size_t>{"pkg-1K", 1024},
                                     {"14", 50u << 20},
                                     {"pkg-64M", 64u << 20}}) {
        tagNET_ORB_XML_CONFIG_OUTPUT out{};
        const bool ok = JsonConfigApp::GetHFPDDataPackage(out, task, error, recorder);
        const std::string text = Download(ok, out);
        EXPECT_EQ(text.size(), size) << task;
        EXPECT_TRUE(Device::IsWholePackage(text)) << task;
    }
    tagNET_ORB_XML_CONFIG_OUTPUT out{};
    EXPECT_FALSE(JsonConfigApp::GetHFPDDataPackage(out, "pkg-2G", error, recorder));
    EXPECT_FALSE(JsonConfigApp::GetHFPDDataPackage(out, "13", error, recorder));  // not done
    CaptureSearchDescription women;
    women.gender = "female";
    EXPECT_EQ(
        Download(JsonConfigApp::GetFCDataPackageByJson(women, out, error, recorder), out).size(),
        90u * 24576);
    women.searchID = "pkg-3M";
    EXPECT_TRUE(Device::IsWholePackage(
        Download(JsonConfigApp::GetFCDataPackageByJson(women, out, error, recorder), out)));
}

TEST(SearchTask, FacesArePackedThenFetchedFromTheirUrl)
{
    const Asked recorder("sim:recorder");
    unsigned error = 0;
    FDLibSearchDescription description;
    description.searchID = "s";
    FDLibFCSearchPackageByJsonResult task;
    FDLibFCSearchPackageByTaskID packed;
    EXPECT_TRUE(
        JsonConfigApp::GetFDLibFCSearchDataPackageTaskID(description, task, error, recorder));
    EXPECT_THAT(task.taskID, HasSubstr(" "));
    for (const int progress : {25, 50, 75, 100}) {
        EXPECT_TRUE(packed.URL.empty());
        EXPECT_TRUE(
            JsonConfigApp::GetFDLibFCSearchDataPackage(packed, task.taskID, error, recorder));
        EXPECT_EQ(packed.progress, progress);
    }
    const auto answer = TestSupport::Ask(recorder, "GET " + packed.URL, "", {.answer = 4u << 20});
    EXPECT_EQ(answer.answer.size(), 120u * 20480);
    EXPECT_TRUE(Device::IsWholePackage(answer.answer));
}

TEST(SearchTask, TheLibrarysRecordsTakeWhatDevicesAnswer)
{
    const Asked recorder("sim:recorder");
    const Asked dome("sim:dome");
    const Asked equipment("sim:switch");
    unsigned error = 0;
    CaptureSearchDescription women;
    women.gender = "female";
    women.maxResults = 10;
    CaptureSearchResult captures;
    EXPECT_TRUE(JsonConfigApp::GetCaptureSearchResult(women, captures, error, recorder));
    ASSERT_EQ(captures.targets.size(), 10u);
    EXPECT_EQ(captures.totalMatches, 90);
    EXPECT_EQ(captures.targets[9].gender, "female");
    EXPECT_GT(captures.targets[9].face_rect.width, 0);

    FDLibSearchDescription faces;
    faces.hasTimeRange = true;
    faces.startTime = "2026-11-18T15:00:00";
    faces.endTime = "2026-11-18T15:30:00";
    FDLibSearchResult people;
    EXPECT_TRUE(JsonConfigApp::GetFDLibFCSearchByJson(faces, people, error, recorder));
    ASSERT_EQ(people.MatchList.size(), 2u);
    EXPECT_EQ(people.MatchList[1].human_data[0].Attendance.AttendStatus.late, 2);
    EXPECT_EQ(people.MatchList[1].human_data[0].Attendance.abnormalRate, "0.25");

    HFPDSearchProgress progress;
    EXPECT_TRUE(JsonConfigApp::GetHFPDSearchProgress(progress, "12", error, recorder));
    EXPECT_EQ(progress.progress.value, 25);
    HFPDSearchFaceResult found;
    EXPECT_TRUE(JsonConfigApp::GetHFPDSearchRecordData(found, "12", error, recorder));
    EXPECT_EQ(found.numOfMatches, 20);
    JsonStatus status;
    for (const auto& [action, code] : {std::pair{0, 1}, {1, 1}, {3, 1}, {3, 1}, {1, 4}, {2, 1}}) {
        EXPECT_TRUE(JsonConfigApp::GetHFPDManagementTask(status, action, 12, error, recorder));
        EXPECT_EQ(status.statusCode, code) << action;
    }

    HFPDCapbility hfpd;
    EXPECT_TRUE(JsonCapApp::GetHFPDCapability(hfpd, error, recorder));
    EXPECT_TRUE(hfpd.isSupportDataPackage && hfpd.occurrences.def == 3);
    IntersectionAnalysisCap intersection;
    EXPECT_TRUE(JsonCapApp::GetIntersectionAnalysisCap(intersection, error,
                                                       static_cast<unsigned>(int(dome)), 1));
    EXPECT_TRUE(intersection.TagID.isSupportIDPoint && !intersection.TagID.isSupportIDDirection);
    MisinfoConfirmCap misinfo;
    EXPECT_TRUE(
        JsonCapApp::getmisinfoConfirmCap(misinfo, error, static_cast<unsigned>(int(recorder))));
    EXPECT_EQ(misinfo.state.opt.size(), 2u);
    PortPoeInfoList ports;
    EXPECT_TRUE(JsonConfigApp::getPortPoeInfoCfgList(ports, error, equipment));
    EXPECT_FALSE(ports.ports.empty());
    ManualPTDeicingCfg deicing;
    EXPECT_TRUE(JsonConfigApp::GetManualPTDeicingCfg(deicing, error, 1, dome));
    deicing.root["PTDeicing"]["enabled"] = true;
    EXPECT_TRUE(JsonConfigApp::SetManualPTDeicingCfg(deicing, status, error, 1, dome));
    EXPECT_EQ(status.statusCode, 1);
    ManualPTDeicingCfg again;
    EXPECT_TRUE(JsonConfigApp::GetManualPTDeicingCfg(again, error, 1, dome));
    EXPECT_EQ(again.root, deicing.root);
}

// Requests made of pieces of real ones, at random but the same on every run, from several threads.
TEST(SearchTask, NoRequestStopsADevice)
{
    const std::vector<std::string> kPieces = {"{\"SearchDescription\": {",
                                              "}",
                                              "\"maxResults\": ",
                                              "\"30\"",
                                              "99999999999",
                                              "-1",
                                              "\"timeSpanList\": [",
                                              "]",
                                              "{\"timeSpan\": {\"endTIme\": \"2026\"}}",
                                              ",",
                                              "null",
                                              "\"zone\": \"1-9999999\"",
                                              "{\"OutputsCtrl\": ",
                                              "\"List\": [{\"id\": 1e300}]",
                                              "\"\\ud800\"",
                                              std::string(3, '\0'),
                                              "\"searchID\": \"pkg-1M\"",
                                              "[[[[",
                                              "<a>",
                                              "{"};
    const std::vector devices = {LoadDevice("alarmhost"), LoadDevice("recorder")};
    std::vector<std::thread> threads;
    for (unsigned seed = 0; seed < 4; ++seed) {
        threads.emplace_back([&, seed] {
            const auto& device = devices[seed % devices.size()];
            std::mt19937 random(seed);
            constexpr const char* kMethods[] = {"GET", "PUT", "POST", "DELETE"};
            for (int i = 0; i < 300; ++i) {
                std::string target = Line(kLines[random() % std::size(kLines)]).target;
                if (random() % 3 == 0) {
                    target.insert(random() % target.size(), 1, static_cast<char>(random() % 256));
                }
                std::string body;
                for (unsigned k = random() % 8; k > 0; --k) {
                    body += kPieces[random() % kPieces.size()];
                }
                const int status =
                    device->Handle({kMethods[random() % 4], TestSupport::Target(target), body})
                        .status;
                EXPECT_TRUE(status >= 200 && status < 600) << target;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

}  // namespace
