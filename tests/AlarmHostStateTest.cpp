// The simulated alarm host: commands, refusals, alarms, batches, configuration, log.
// SPDX-License-Identifier: Apache-2.0
#include <thread>

#include "support/DeviceSteps.h"

using testing::HasSubstr;
using TestSupport::AskJson;
using TestSupport::LoadDevice;
using TestSupport::Play;

namespace
{

const std::string kControl = "SecurityCP/control/";

TEST(AlarmHostState, ArmsWhatIsReadyAndSaysWhatStandsInTheWay)
{
    const auto host = LoadDevice("alarmhost");
    Play(*host,
         {{"POST", kControl + "arm/<1>?ways=<away>", "", 200, "\"statusCode\" : 1"},
          {"POST", kControl + "arm/<1>?ways=%3Cstay%3E", "", 200, "\"statusCode\" : 1"},
          {"POST", kControl + "arm/2?ways=away", "", 200, "\"statusCode\" : 1"},
          {"POST", kControl + "arm/<3>?ways=<away>", "", 200, "\"zoneOpen\""},
          {"POST", kControl + "arm/<3>?ways=<away>", "", 200, "zone 17 is open"},
          {"POST", kControl + "arm/<4>?ways=<away>", "", 200, "\"ok\""},  // its open one: bypassed
          {"POST", kControl + "arm/<5>?ways=<away>", "", 200, "\"subSystemDisabled\""},
          {"POST", kControl + "arm/<1>?ways=<night>", "", 400, "\"badParameters\""},
          {"POST", kControl + "arm/<9>?ways=<away>", "", 400, "\"invalidID\""},
          {"POST", kControl + "arm/<x>?ways=<away>", "", 400, "\"badParameters\""},
          {"GET", kControl + "arm/<1>", "", 405, "methodNotAllowed"},
          {"POST", kControl + "bypass/<17>", "", 200, "\"ok\""},
          {"POST", kControl + "arm/<3>?ways=<away>", "", 200, "\"ok\""},
          {"POST", kControl + "bypassRecover/<17>", "", 200, "\"subSystemArmed\""},
          {"POST", kControl + "disarm/<3>", "", 200, "\"ok\""},
          {"POST", kControl + "bypassRecover/<17>", "", 200, "\"ok\""},
          {"POST", kControl + "bypass/<57>", "", 200, "\"zoneNotBypassable\""},
          {"POST", kControl + "arm",
           R"({"SubSysList": [{"SubSys": {"id": 6, "armType": "away"}},
                              {"SubSys": {"id": 3, "armType": "away"}}]})",
           200, "\"id\" : 3"},
          {"POST", kControl + "arm", "{\"SubSysList\": 5}", 400, "badJsonContent"}});
    std::string ways;
    const Json::Value status = AskJson(*host, "GET", "SecurityCP/status/subSystems");
    for (const Json::Value& entry : status["SubSysList"]) {
        ways += entry["SubSys"]["arming"].asString() + " ";
    }
    EXPECT_EQ(ways, "stay away disarm away disarm away away away ");
}

TEST(AlarmHostState, AnOpenedZoneAlarmsOnlyWhereItIsSupervised)
{
    const auto host = LoadDevice("alarmhost");
    const auto noAlarm = [&] {
        return AskJson(*host, "GET", "SecurityCP/status/host")
                   .toStyledString()
                   .find("\"alarm\" : true") == std::string::npos;
    };
    EXPECT_FALSE(noAlarm());
    Play(*host, {{"POST", kControl + "clearAlarm/<8>", "", 200, "\"ok\""},
                 {"GET", "SecurityCP/status/sirens", "", 200, "\"switch\" : \"close\""},
                 {"POST", kControl + "arm/<1>?ways=<stay>", "", 200, "\"ok\""},
                 {"PUT", "SDK/site/zones/2?open=true", "", 200, "\"ok\""},  // follows the entrance
                 {"PUT", "SDK/site/zones/9?open=true", "", 200, "\"ok\""}});  // not armed
    EXPECT_TRUE(noAlarm());
    Play(*host, {{"PUT", "SDK/site/zones/1?open=true", "", 200, "\"ok\""},
                 {"GET", "SecurityCP/status/subSystems", "", 200, "\"alarm\" : true"},
                 {"GET", "SecurityCP/status/sirens", "", 200, "\"switch\" : \"open\""},
                 {"POST", kControl + "clearAlarm/<1>", "", 200, "\"ok\""},
                 {"PUT", "SDK/site/zones/1?open=maybe", "", 400, "badParameters"},
                 {"PUT", "SDK/site/zones/99?open=true", "", 400, "invalidID"}});
    EXPECT_TRUE(noAlarm());
}

TEST(AlarmHostState, BatchesAreCarriedOutAsFarAsTheyGoAndNameTheRest)
{
    const auto host = LoadDevice("alarmhost");
    const std::string body =
        R"({"OutputsCtrl": {"switch": "open", "List": [{"id": 2}, {"id": 40}]}})";
    const auto turn = [](const std::string& what, const std::string& how) {
        return "{\"" + what + R"(": {"switch": ")" + how + "\"}}";
    };
    Play(*host, {{"POST", kControl + "outputs", body + std::string(8192 - body.size(), '\0'), 200,
                  "\"id\" : 40"},
                 {"POST", kControl + "outputs", std::string(8192, '\0'), 400, "badJsonContent"},
                 {"PUT", kControl + "outputs/3", turn("OutputsCtrl", "open"), 200, "\"ok\""},
                 {"PUT", kControl + "outputs/3", turn("OutputsCtrl", "up"), 400, "badParameters"},
                 {"PUT", kControl + "outputs/33", turn("OutputsCtrl", "open"), 400, "invalidID"},
                 {"PUT", kControl + "sirens/1", turn("SirensCtrl", "open"), 200, "\"ok\""},
                 {"POST", kControl + "bypass", R"({"zone": "1,9-11,70"})", 200, "\"id\" : 70"},
                 {"POST", kControl + "bypass", R"({"zone": "0-2000000000"})", 400, "badJson"},
                 {"POST", kControl + "bypass", R"({"zone": "2-1"})", 400, "badJson"},
                 {"POST", kControl + "bypass", R"({"zone": "1-900,1-900"})", 400, "at most 1000"},
                 {"POST", kControl + "bypassRecover", R"({"zone": "64-65"})", 200, "\"id\" : 65"},
                 {"POST", kControl + "bypassRecover", R"({"zone": "9"})", 200, "\"ok\""}});
    const auto having = [&](const char* path, const char* list, const char* item, const char* key,
                            const Json::Value& value) {
        std::string ids;
        const Json::Value status = AskJson(*host, "GET", path);
        for (const Json::Value& entry : status[list]) {
            ids += entry[item][key] == value ? entry[item]["id"].asString() + " " : "";
        }
        return ids;
    };
    EXPECT_EQ(having("SecurityCP/status/outputs", "OutputList", "Output", "switch", "open"),
              "2 3 5 ");
    // 11 is a panic button, which is always supervised.
    EXPECT_EQ(having("SecurityCP/status/zones", "ZoneList", "Zone", "bypassed", true), "1 10 29 ");
}

TEST(AlarmHostState, DetectorsAreSilencedAndResetByEitherOfTheirNumbers)
{
    const auto host = LoadDevice("alarmhost");
    const std::string detector = "FireControl/Control/detectorAlarm/";
    const auto cmd = [](const std::string& word) {
        return R"({"DetectorAlarm": {"cmd": ")" + word + "\"}}";
    };
    Play(*host, {{"PUT", detector + "5", cmd("silence"), 200, "\"ok\""},
                 {"GET", "FireControl/Status/detectorStatus", "", 200, "\"silenced\" : true"},
                 {"PUT", detector + "3/1", cmd("reset"), 200, "\"ok\""},
                 {"PUT", detector + "4/1", cmd("reset"), 200, "\"ok\""},
                 {"PUT", detector + "4/3", cmd("reset"), 400, "invalidID"},
                 {"PUT", detector + "9", cmd("reset"), 400, "invalidID"},
                 {"PUT", detector + "1", cmd("sing"), 400, "badParameters"}});
    const std::string states =
        AskJson(*host, "GET", "FireControl/Status/detectorStatus").toStyledString();
    EXPECT_THAT(states, testing::Not(HasSubstr("abnormal")));
    EXPECT_THAT(states, HasSubstr("expired"));
}

TEST(AlarmHostState, ConfigurationIsReadBackAndKeptFromNonsense)
{
    const auto host = LoadDevice("alarmhost");
    const std::string config = "SecurityCP/Configuration/";
    Play(*host, {{"PUT", config + "zones/1", R"({"Zone": {"zoneName": "Main door"}})", 200, "ok"},
                 {"GET", config + "zones", "", 200, "Main door"},
                 {"PUT", config + "zones", R"({"List": [{"Zone": {"id": 2, "enable": false}}]})",
                  200, "ok"},
                 {"GET", config + "zones/2", "", 200, "\"enable\" : false"},
                 {"PUT", config + "zones/1", R"({"Zone": {"zoneName": 5}})", 400, "zoneName"},
                 {"PUT", config + "zones/1", R"({"Zone": {"colour": "red"}})", 400, "colour"},
                 {"PUT", config + "zones/1", R"({"Zone": {"id": 2}})", 400, "badJsonContent"},
                 {"PUT", config + "zones/65", R"({"Zone": {}})", 400, "invalidID"},
                 {"PUT", config + "zones/1", "{\"Zone\": ", 400, "badJsonFormat"},
                 {"PUT", config + "subSys/2", R"({"SubSys": {"linkageZones": [1, 9]}})", 200, "ok"},
                 {"GET", config + "zones/10", "", 200, "\"subSystemNo\" : 0"},
                 {"PUT", config + "zones/1",
                  R"({"Zone": {"zoneName": ")" + std::string(20'000, 'x') + "\"}}", 400, "16 KiB"},
                 {"GET", config + "clocks", "", 404, "notSupport"}});
    const Json::Value subSystems = AskJson(*host, "GET", config + "subSys")["List"];
    EXPECT_EQ(subSystems[0]["SubSys"]["linkageZones"].size(), 7u);
    EXPECT_EQ(subSystems[1]["SubSys"]["linkageZones"].size(), 2u);
}

TEST(AlarmHostState, TheLogTellsEveryCommandAndIsReadPageByPage)
{
    const auto host = LoadDevice("alarmhost");
    const auto search = [&](const std::string& position, const std::string& more = "") {
        const std::string body = R"({"SearchDescription": {"searchID": "s1", "maxResults": "15",)" +
                                 more + R"( "searchResultPostion": ")" + position + "\"}}";
        return AskJson(*host, "POST", "SecurityCP/Log/search", body)["SearchResult"];
    };
    Play(*host, {{"POST", kControl + "arm/<9>?ways=<away>", "", 400, "invalidID"},
                 {"POST", "SecurityCP/Log/search", R"({"SearchDescription": {"maxResults": "x"}})",
                  400, "badJsonContent"},
                 {"POST", "SecurityCP/Log/search", "{}" + std::string(70'000, ' '), 413, "TooL"}});
    size_t seen = 0;
    std::string last;
    for (Json::Value page = search("0"); page["numOfMatches"].asUInt() > 0;
         page = search(std::to_string(seen))) {
        seen += page["matchList"].size();
        EXPECT_EQ(page["searchID"], "s1");
        EXPECT_EQ(page["responseStatusStrg"], seen < 42 ? "MORE" : "OK");
        const Json::Value& entry = page["matchList"][page["matchList"].size() - 1];
        last = entry["searchMatchItem"]["logDescriptor"].toStyledString();
    }
    EXPECT_EQ(seen, 42u);
    EXPECT_THAT(last, HasSubstr("\"event\" : \"arm away\""));
    EXPECT_THAT(last, HasSubstr("\"result\" : \"invalidID\""));
    const std::string span =
        R"("timeSpanList": [{"timeSpan": {"startTime": "2026-11-20T09:00:00+01:00",
                                           "endTIme": "2026-11-20T08:29:59Z"}}],)";
    EXPECT_EQ(search("0", span)["totalMatches"].asInt(), 1);
}

TEST(AlarmHostState, ThreadsCommandOneHostAtOnce)
{
    const auto host = LoadDevice("alarmhost");
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            const std::string id = "<" + std::to_string(i % 2 + 1) + ">";
            for (int k = 0; k < 20; ++k) {
                Play(*host, {{"POST", kControl + "arm/" + id + "?ways=<away>", "", 200, "ok"},
                             {"GET", "SecurityCP/status/host", "", 200, "ZoneList"},
                             {"POST", kControl + "disarm/" + id, "", 200, "ok"}});
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

}  // namespace
