// Searches, search tasks and packages of simulated devices.
// SPDX-License-Identifier: Apache-2.0
#include <random>
#include <thread>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Device/search/Package.h"
#include "Keel/StringUtil.h"
#include "support/DeviceSteps.h"

using namespace CapabilitySet;
using testing::HasSubstr;
using TestSupport::Asked;
using TestSupport::AskJson;
using TestSupport::LoadDevice;
using TestSupport::Play;

namespace
{

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
    Play(*recorder,
         {{"POST", "SDT/Face/captureSearch", R"({"maxResults": -1})", 400, "badJson"},
          {"POST", "SDT/Face/captureSearch", R"({"startTime": "now"})", 400, "badJson"},
          {"POST", "SDT/Face/captureSearch", "[]", 400, "badJsonContent"},
          {"POST", "SDT/Face/captureSearch", "{}" + std::string(70'000, ' '), 400, "bad"},
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
    for (const std::uint64_t size :
         std::vector<std::uint64_t>{0, 39, 40, 41, 47, 48, 70000, 1 << 20}) {
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

ON_EVERY_ROAD(AskedTaskTest);

TEST_P(AskedTaskTest, FacesArePackedThenFetchedFromTheirUrl)
{
    const Asked recorder = Login("recorder");
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

// Random requests, the same on every run, from several threads.
TEST(SearchTask, NoRequestStopsADevice)
{
    std::vector<std::string> pieces = Keel::StringUtil::SplitString(
        "{\"SearchDescription\": {|}|\"maxResults\": |\"30\"|99999999999|-1|\"timeSpanList\": [|]|"
        "{\"timeSpan\": {\"endTIme\": \"2026\"}}|,|null|\"zone\": \"1-9999999\"|{\"OutputsCtrl\": |"
        "\"List\": [{\"id\": 1e300}]|\"\\ud800\"|\"searchID\": \"pkg-1M\"|[[[[|<a>|{",
        "|");
    pieces.emplace_back(3, '\0');
    constexpr const char* kTargets[] = {
        "SecurityCP/capabilities",
        "SecurityCP/control/outputs",
        "SecurityCP/control/bypass",
        "SecurityCP/Log/search",
        "SecurityCP/Configuration/zones/1",
        "FireControl/Control/detectorAlarm/5",
        "SDT/Face/captureSearch",
        "SDT/Face/captureSearch/dataPackage",
        "SDT/HFPD/searchTask",
        "SDT/HFPD/searchTask/result/recordData/12",
        "SDT/HFPD/search/dataPackage/14",
        "SDT/Management/Task/pause/12",
        "SDT/Management/Task/progress/12",
        "SDT/Management/Task/cancel12",
        "SDT/Management/analysisResult/search",
        "Intelligent/FDLib/FCSearch",
        "Intelligent/FDLib/FCSearch/dataPackage",
        "Intelligent/FDLib/FCSearch/dataPackage/progress?taskID=pkg-1K",
        "Intelligent/misinfoFilter/confirmation",
        "ContentMgmt/SearchByTargetType",
        "Radar/Configuration/alarmLineCfg"};
    const std::vector devices = {LoadDevice("alarmhost"), LoadDevice("recorder")};
    std::vector<std::thread> threads;
    for (unsigned seed = 0; seed < 4; ++seed) {
        threads.emplace_back([&, seed] {
            const auto& device = devices[seed % devices.size()];
            std::mt19937 random(seed);
            constexpr const char* kMethods[] = {"GET", "PUT", "POST", "DELETE"};
            for (int i = 0; i < 300; ++i) {
                std::string target = kTargets[random() % std::size(kTargets)];
                if (random() % 3 == 0) {
                    target.insert(random() % target.size(), 1, static_cast<char>(random() % 256));
                }
                std::string body;
                for (unsigned k = random() % 8; k > 0; --k) {
                    body += pieces[random() % pieces.size()];
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
