// JSON searches: the descriptions that are sent, the answers that are read, data packages.
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <json/reader.h>
#include <json/value.h>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Keel/Error.h"
#include "support/AllocationFaults.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"

namespace
{

using namespace CapabilitySet;
using namespace TestSupport;

constexpr int kUser = 5;

Json::Value Parsed(const std::string& text)
{
    Json::Value value;
    EXPECT_TRUE(Json::Reader().parse(text, value)) << text;
    return value;
}

/// A document in the one form that tests compare.
std::string Styled(const std::string& text)
{
    return Parsed(text).toStyledString();
}

constexpr const char* kPaging =
    R"("searchID": "s 1", "searchResultPosition": 40, "maxResults": 20)";

template <class Description>
Description Page()
{
    Description description;
    description.searchID = "s 1";
    description.searchResultPosition = 40;
    description.maxResults = 20;
    return description;
}

TEST(JsonSearchTest, WritesDescriptionsWithTheKeysAndKindsThatDevicesRead)
{
    auto capture = Page<CaptureSearchDescription>();
    capture.maxSearchResults = 500;
    capture.channelID = {3, 1};
    capture.gender = "female";
    capture.currTemperature = 37.5;
    capture.root["minScore"] = 80;
    EXPECT_EQ(capture.CreatJsonParser(),
              Styled(std::string("{\"CaptureSearchDescription\": {") + kPaging + R"(,
        "maxSearchResults": 500, "startTime": "", "endTime": "", "channelID": [3, 1],
        "choiceChannel": "", "ageGroup": "", "gender": "female", "glasses": "", "smile": "",
        "mask": "", "beard": "", "faceExpression": "", "ethnic": "", "isInLibrary": "",
        "thermometryUnit": "", "currTemperature": 37.5, "temperatureCondition": "",
        "minScore": 80}})"));

    auto behavior = Page<DeeplyThinkBehaviorDescription>();
    behavior.startTime = "2020-01-01T00:00:00Z";
    EXPECT_EQ(behavior.CreatJsonParser(),
              Styled(std::string("{\"SearchDescription\": {") + kPaging +
                     R"(, "startTime": "2020-01-01T00:00:00Z", "endTime": ""}})"));

    AudioImportAudioLibData audio;
    audio.SourceData.UUID = "u";
    audio.DestinationData.audioLibID = "2";
    EXPECT_EQ(audio.Make(), Styled(R"({"ImportAudioLib": {"SourceData": {"UUID": "u"},
        "DestinationData": {"audioLibID": "2", "audioSampleID": "", "audioID": "",
                            "sampleName": "", "sampleType": ""}}})"));
}

TEST(JsonSearchTest, AddsZoneAndAttendanceToAFaceLibrarySearchOnlyWhenItHasThem)
{
    auto search = Page<FDLibSearchDescription>();
    search.maxResultNumber = 100;
    search.startTime = "2020-01-01T00:00:00";
    search.endTime = "2020-01-31T23:59:59";
    search.Attendance.dayOfWeek = {1, 5};
    search.Attendance.FDID = "lib";
    const auto expected = [&](const std::string& rest) {
        return Styled(std::string("{\"FDLibSearchDescription\": {") + kPaging +
                      ", \"maxResultNumber\": 100, " + rest + "}}");
    };
    EXPECT_EQ(search.CreatJsonParser(), expected(R"("searchType": "")"));

    search.hasTimeRange = true;
    search.searchType = "attend";
    const std::string range = R"("startTime": "2020-01-01T00:00:00+08:00",
                                 "endTime": "2020-01-31T23:59:59+08:00")";
    EXPECT_EQ(search.CreatJsonParser(), expected(R"("searchType": "attend", )" + range));

    search.searchType = "attendance";
    search.Attendance.Schedules = Parsed(R"([{"from": "09:00"}])");
    EXPECT_EQ(search.Make(), expected(range + R"(, "searchType": "attendance",
        "Attendance": {"dayOfWeek": [1, 5], "FDID": "lib", "PID": "",
                       "Schedules": [{"from": "09:00"}], "MatchFace": {}})"));
    search.root["Attendance"]["minimum"] = 90;
    EXPECT_EQ(Parsed(search.Make())["FDLibSearchDescription"]["Attendance"]["minimum"], 90)
        << "what the client put beside the members stays";
}

TEST(JsonSearchTest, SendsOfAParsedFaceLibrarySearchOnlyWhatItAsksFor)
{
    FDLibSearchDescription search(R"({"FDLibSearchDescription": {"searchType": "attendance",
        "startTime": "2020-01-01T00:00:00+08:00", "endTime": "2020-01-02T00:00:00+08:00",
        "Attendance": {"dayOfWeek": [2], "FDID": "lib", "minimum": 90}}})");
    const auto sent = [&] { return Parsed(search.Make())["FDLibSearchDescription"]; };
    EXPECT_EQ(sent()["Attendance"]["FDID"], "lib");
    EXPECT_EQ(sent()["Attendance"]["minimum"], 90);
    EXPECT_FALSE(sent().isMember("startTime") || sent().isMember("endTime"));
    search.searchType = "face";
    search.hasTimeRange = true;
    EXPECT_FALSE(sent().isMember("Attendance"));
    EXPECT_EQ(sent()["startTime"], "2020-01-01T00:00:00+08:00");
    search.searchType = "attendance";
    EXPECT_EQ(sent()["Attendance"]["FDID"], "lib");
}

TEST(JsonSearchTest, ReadsAWholeFaceLibraryAnswer)
{
    const FDLibSearchResult result(R"({"FDLibSearchResult": {
        "responseStatusStrg": "MORE", "numOfMatches": 1, "totalMatches": 9, "progress": 100,
        "MatchList": [{"face_picurl": "f", "monitorId": 7, "alarm_date": "d", "human_data": [
            {"human_name": "n", "FDID": "lib", "face_data": [{"bl_picurl": "a"}, {"bl_picurl": "b"}],
             "Attendance": {"totalNumbers": "31", "DaliyList": [{"day": 1}],
                 "CheckIn": {"checkInDay": 20, "nocheckInDay": "11"},
                 "AttendStatus": {"normal": 1, "late": 2, "leaveEarly": 3, "absenteeism": 4,
                                  "withOutAttend": 5},
                 "abnormalRate": "wrong", "abnormalRate ": 0.5}}]}]}})");
    EXPECT_EQ(result.responseStatusStrg, "MORE");
    EXPECT_EQ(result.totalMatches, 9);
    ASSERT_EQ(result.MatchList.size(), 1U);
    EXPECT_EQ(result.MatchList[0].monitorId, "7");
    ASSERT_EQ(result.MatchList[0].human_data.size(), 1U);
    const FDLibHuman& human = result.MatchList[0].human_data[0];
    ASSERT_EQ(human.face_data.size(), 2U);
    EXPECT_EQ(human.face_data[1].bl_picurl, "b");
    EXPECT_EQ(human.Attendance.totalNumbers, 31);
    EXPECT_EQ(human.Attendance.dailyList, Parsed(R"([{"day": 1}])"));
    EXPECT_EQ(human.Attendance.CheckIn.nocheckInDay, 11);
    EXPECT_EQ(human.Attendance.AttendStatus.withOutAttend, 5);
    EXPECT_EQ(human.Attendance.abnormalRate, "0.5");
    EXPECT_TRUE(human.present && human.Attendance.present);
}

TEST(JsonSearchTest, ReadsMembersInEachFormThatDevicesSend)
{
    EXPECT_EQ(HFPDSearchProgress(R"({"progress": {"value": 40}})").progress.value, 40);
    EXPECT_EQ(HFPDSearchProgress(R"({"progress": 40})").progress.value, 40);
    EXPECT_FALSE(HFPDSearchProgress(R"({"progress": "done"})").progress.present);
    const FDLibSearchResult people(R"({"FDLibSearchResult": {"MatchList": [{"human_data": [
        {"Attendance": {"checkInDay": 3, "nocheckInDay": 4}, "abnormalRate ": "0.5"}]}]}})");
    ASSERT_EQ(people.MatchList.size(), 1U);
    const FDLibHuman& human = people.MatchList[0].human_data.at(0);
    EXPECT_EQ(human.Attendance.checkInDay, 3);
    EXPECT_EQ(human.Attendance.nocheckInDay, 4);
    EXPECT_EQ(human.abnormalRate, "0.5");
    const DetectorStates states(R"({"List": [{"DetectorStatus": {
        "Gas": {"status": "normal", "preheated": true}, "Smoke": {"status": "abnormal"},
        "Motion": true, "Tamper": "normal"}}]})");
    ASSERT_EQ(states.detectors.size(), 1U);
    const DetectorStatus& detector = states.detectors[0];
    EXPECT_TRUE(detector.Gas.preheated && !detector.Gas.expired && !detector.Shelter.present);
    EXPECT_EQ(detector.Gas.status + detector.Tamper.status, "normalnormal");
    EXPECT_EQ(detector.Smoke.status + detector.Motion.status, "abnormaltrue");
    const DetectorSilenceCap silence(R"({"DetectorAlarmCap": {"id": {"@min": 1, "@max": 9},
        "cmd": {"@opt": ["mute", "reset"], "@def": "mute"},
        "ChannelDetectorCapList": [{"ChannelID": {"id": {"@max": 4}}}]}})");
    EXPECT_EQ(silence.cmd.def, "mute") << "of options the default is a word";
    EXPECT_EQ(silence.channels.size(), 1U);
    const CaptureSearchResult captures(R"({"CaptureSearchResult": {"targets": [
        {"id": 4, "channelId": "12", "isInLibrary": true, "face_rect": {"x": 1, "y": 0.5}},
        {"id": "5", "channelId": 13, "currTemperature": 36}]}})");
    EXPECT_EQ(CaptureSearchResult(R"({"totalMatches": 3, "targets": [{}, {}]})").targets.size(), 2U)
        << "an answer without a key around it";
    EXPECT_TRUE(ImportAudioLibCap(R"({"SourceData": {"UUID": {"@max": 64}}})").SourceData.present);
    EXPECT_EQ(AlarmHostDeviceLogResult(R"({"numOfMatches": 3})").numOfMatches, 0);
    ASSERT_EQ(captures.targets.size(), 2U);
    EXPECT_EQ(captures.targets[0].id, "4");
    EXPECT_EQ(captures.targets[0].channelId, 12);
    EXPECT_EQ(captures.targets[0].isInLibrary, "true");
    EXPECT_EQ(captures.targets[0].face_rect.y, 0.5);
    EXPECT_EQ(captures.targets[1].channelId, 13);
    EXPECT_EQ(captures.targets[1].currTemperature, 36);
}

TEST(JsonSearchTest, SendsNothingForAnUnknownAction)
{
    for (const int action : {-1, 4, 1 << 30}) {
        const ScriptedSdk& sdk = ScriptedSdk::Fresh();
        JsonStatus status;
        status.statusCode = 1;
        unsigned error = 0;
        EXPECT_FALSE(JsonConfigApp::GetHFPDManagementTask(status, action, 12, error, kUser));
        EXPECT_EQ(error, 23U);
        EXPECT_EQ(status.statusCode, 0);
        EXPECT_TRUE(sdk.calls.empty()) << action;
    }
}

/// A caller's output structure that something stands in already.
struct Package
{
    tagNET_ORB_XML_CONFIG_OUTPUT out{};
    char before = 0;
    unsigned error = 77;

    Package()
    {
        out.outBuffer = &before;
        out.returnedSize = 1;
    }
    ~Package()
    {
        if (out.outBuffer != &before) {
            delete[] static_cast<char*>(out.outBuffer);
        }
    }
    Package(const Package&) = delete;
    Package& operator=(const Package&) = delete;

    bool Get() { return JsonConfigApp::GetHFPDDataPackage(out, "t 1", error, kUser); }
    [[nodiscard]] bool IsUntouched() const
    {
        return out.outBuffer == &before && out.returnedSize == 1;
    }
};

TEST(JsonSearchTest, AsksForPackagesWithTwoMinutesOfPatienceAndTellsWhichFailed)
{
    LogCapture log;
    CaptureSearchDescription description;
    for (const bool captures : {true, false}) {
        ScriptedSdk& sdk = ScriptedSdk::Fresh();
        sdk.steps = {{.error = 8}};
        log.Clear();
        Package package;
        EXPECT_FALSE(captures ? JsonConfigApp::GetFCDataPackageByJson(description, package.out,
                                                                      package.error, kUser)
                              : package.Get());
        ASSERT_EQ(sdk.calls.size(), 1U);
        const SdkCall& call = sdk.calls.front();
        EXPECT_EQ(call.line, captures
                                 ? "POST /TARN/SDT/Face/captureSearch/dataPackage\r\n"
                                 : "GET /TARN/SDT/HFPD/search/dataPackage/t 1?format=json\r\n");
        EXPECT_EQ(call.input, captures ? description.CreatJsonParser() : "");
        EXPECT_EQ(call.timeout, 120000U);
        EXPECT_TRUE(call.isWellFilled);
        ASSERT_FALSE(log.Lines().empty());
        const LogLine line = log.Lines().back();
        EXPECT_EQ(line.message, "NET_ORB_STDXMLConfig failed, [50]-[8].");
        EXPECT_EQ(line.function, captures ? "CapabilitySet::JsonConfigApp::GetFCDataPackageByJson"
                                          : "CapabilitySet::JsonConfigApp::GetHFPDDataPackage");
        EXPECT_EQ(Keel::Error::GetLastError().code, 8);
    }
}

TEST(JsonSearchTest, LeavesTheCallersStructureAloneWhenMemoryRunsOut)
{
    CaptureSearchDescription description;
    bool struck = true;
    for (std::size_t ordinal = 1; struck; ++ordinal) {
        ScriptedSdk::Fresh().steps = {{.answer = "package", .returnedSize = 7}};
        Package package;
        const AllocationFault fault(AllocationFault::New, ordinal);
        const bool got =
            JsonConfigApp::GetFCDataPackageByJson(description, package.out, package.error, kUser);
        struck = AllocationFault::Struck();
        ASSERT_EQ(got, !struck) << "allocation " << ordinal;
        ASSERT_EQ(package.error, struck ? 23U : 0U);
        ASSERT_EQ(package.IsUntouched(), struck);
    }
}

}  // namespace
