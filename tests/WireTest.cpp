// Every JSON operation of the library asked of a simulated device, in this process and over HTTP.
// SPDX-License-Identifier: Apache-2.0
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>

#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "support/DeviceSteps.h"

namespace
{

using namespace CapabilitySet;
using TestSupport::Asked;

class WireTest : public TestSupport::OnEveryRoad
{
protected:
    /// The user ID of a device that all questions of the test go to.
    int At(const char* profile)
    {
        auto& device = devices_[profile];
        if (!device) {
            device = std::make_unique<Asked>(GetParam(), profile);
        }
        return *device;
    }

    /// A document read without the library.
    Json::Value Read(const char* profile, const std::string& path)
    {
        Json::Value root;
        const auto answer = TestSupport::Ask(At(profile), "GET " + TestSupport::Target(path), "",
                                             {.answer = 65536});
        EXPECT_TRUE(Json::Reader().parse(answer.answer, root)) << path;
        return root;
    }

    /// Asks once; `holds` is a condition on the record `out`.
    template <class Record, class Call, class Holds>
    Record Check(const char* profile, const std::string& text, Call call, Holds holds)
    {
        asked_.insert(text.substr(0, text.find('(')));
        Record out;
        unsigned err = 0;
        EXPECT_TRUE(call(out, err, At(profile)))
            << text << ": " << NET_ORB_GetLastError() << ' ' << NET_ORB_GetLastErrorDetail();
        EXPECT_EQ(err, 0U) << text;
        EXPECT_TRUE(holds(out)) << text;
        return out;
    }

    void Capabilities();
    void Settings();
    void Tables();
    void Searches();
    void Tasks();
    void AlarmHost();
    void Detectors();

    std::map<std::string, std::unique_ptr<Asked>> devices_;
    std::set<std::string> asked_;
};

INSTANTIATE_TEST_SUITE_P(Over, WireTest,
                         testing::Values(TestSupport::Road::InProcess, TestSupport::Road::Http),
                         TestSupport::NameOfRoad);

/// A call with `out`, `err` and `user`, and what it must leave in `out`.
#define ASK(profile, Record, call, holds)                                                       \
    Check<Record>(                                                                              \
        profile, #call,                                                                         \
        [&]([[maybe_unused]] auto& out, [[maybe_unused]] auto& err, int user) { return call; }, \
        [&]([[maybe_unused]] const Record& out) { return bool(holds); })

constexpr unsigned Handle(int user)
{
    return static_cast<unsigned>(user);
}

void WireTest::Capabilities()
{
    using J = JsonCapApp;
    ASK("recorder", ImagesComparisionCapbility, J::GetImagesComparisionCapability(out, err, user),
        out.dataType.opt.size() == 2);
    ASK("recorder", HFPDCapbility, J::GetHFPDCapability(out, err, user),
        out.isSupportDataPackage && out.occurrences.def == 3);
    ASK("alarmhost", AlarmHostTARNCapability, J::GetAlarmHostTARNCapability(out, err, user),
        out.partitionNum == 8 && out.extendRelayNum == 24);
    ASK("alarmhost", AlarmHostOperateTARNCapability,
        J::GetAlarmHostOperateCapability(out, err, user), out.ZoneCap.isSptBypassRecoverBatch);
    ASK("alarmhost", AlarmHostStatusTARNCapability, J::GetAlarmHostStatusCapability(out, err, user),
        out.isSptAllHost);
    ASK("dome", IntersectionAnalysisCap, J::GetIntersectionAnalysisCap(out, err, Handle(user), 1),
        out.TagID.isSupportIDPoint && !out.TagID.isSupportIDDirection);
    ASK("switch", FiberConvertCap, J::getFiberConvertCapability(out, err, user),
        out.isSupportCrateSlotStatus);
    ASK("switch", PortPoeInfoListCap, J::GetPortPoeInfoListCap(out, user),
        out.port.root["maxPower"]["@max"] == 30);
    ASK("recorder", CityManagementCapability, J::GetCityManagementCap(out, err, Handle(user)),
        out.maxResultNumber.max == 10000);
    ASK("recorder", DeeplyThinkBehaviorCap, J::getDeeplyThinkAnalysisCap(out, err, Handle(user)),
        out.CountByTask["maxTaskNum"] == 16);
    ASK("recorder", MisinfoConfirmCap, J::getmisinfoConfirmCap(out, err, Handle(user)),
        out.state.opt.size() == 2);
    ASK("recorder", AudioDetectionSearchCapability,
        J::GetAudioDetectionSearchCap(out, err, Handle(user)),
        out.root["AudioDetectionSearchCap"]["maxResults"]["@max"] == 50);
    ASK("recorder", ImportAudioLibCap, J::GetImportAudioLibCap(out, err, Handle(user)),
        out.DestinationData.sampleType.opt.size() == 4);
}

void WireTest::Settings()
{
    using J = JsonConfigApp;
    auto audio = ASK("dome", CAudioDectionCfg, J::GetAudioDectioinCfg(out, err, 1, user),
                     out.root["AudioTest"]["volume"] == 50);
    audio.root["AudioTest"]["volume"] = 70;
    ASK("dome", CAudioDectionCfg, J::SetAudioDectioinCfg(audio, err, 1, true, user), true);
    ASK("dome", CAudioDectionCfg, J::GetAudioDectioinCfg(out, err, 1, user),
        out.root == audio.root);

    auto deicing = ASK("dome", ManualPTDeicingCfg, J::GetManualPTDeicingCfg(out, err, 1, user),
                       out.root["PTDeicing"]["duration"] == 30);
    deicing.root["PTDeicing"]["duration"] = 45;
    ASK("dome", JsonStatus, J::SetManualPTDeicingCfg(deicing, out, err, 1, user),
        out.statusCode == 1);
    ASK("dome", ManualPTDeicingCfg, J::GetManualPTDeicingCfg(out, err, 1, user),
        out.root == deicing.root);

    ManualPersonArmingTrack track(R"({"ManualPersonArmingTrack": {"duration": 15}})");
    ASK("dome", JsonStatus, J::setManualPersonTrack(track, err, 1, user), true);
    EXPECT_EQ(
        Read("dome", "Intelligent/channels/1/manualPersonArmingTrack")["ManualPersonArmingTrack"]
                                                                      ["duration"],
        15);
    const ManualClickThermometry click(R"({"ManualClickThermometry": {"enabled": true}})");
    ASK("dome", JsonStatus, J::SetMaunalClickThermomtry(out, click, err, 1, user),
        out.statusCode == 1);
    EXPECT_EQ(
        Read("dome",
             "Thermal/channels/1/clickToThermometry/rules/1")["ManualClickThermometry"]["enabled"],
        true);
    MisinfoConfirm confirm;
    confirm.eventType = "lineDetection";
    confirm.state = "wrong";
    ASK("recorder", JsonStatus, J::setMisinfoConfirmConfig(confirm, out, err, user),
        out.statusCode == 1);
    EXPECT_EQ(Read("recorder", "Intelligent/misinfoFilter/confirmation")["misinfoConfirm"]["state"],
              "wrong");
}

void WireTest::Tables()
{
    using J = JsonConfigApp;
    ASK("dome", ManualFaceSnapCfg, J::GetManualFaceSnapCfg(out, err, 1, user),
        out.root["ManualFaceSnap"]["snapTimes"] == 3);
    ASK("dome", IntersectionAnalysisConfig, J::GetIntersectionAnalysisConfig(out, err, 1, user),
        out.root["IntersectionAnalysis"].isObject());
    ASK("recorder", GetAIOPAlgorithmModel, J::GetAIOPModel(out, err, user),
        out.root["AlgorithmModelList"][1]["MPID"] == "model-2");
    ASK("recorder", AudioLibBaseConfig, J::GetAudioLibBaseConfig(out, err, user),
        out.root["AudioLib"]["AudioLibList"].size() == 2);
    AudioImportAudioLibData sound;
    sound.DestinationData.sampleName = "glass";
    ASK("recorder", AudioImportAudioLibResult,
        J::PostAudioDetectionToAudioLib(sound, out, err, user), out.root["audioID"] == "audio-41");
    ASK("switch", FiberConvertSlotList, J::getFiberConvertSlotList(out, err, user),
        out.root["FiberConvertSlotList"].size() == 16);
    ASK("switch", PortPoeInfoList, J::getPortPoeInfoCfgList(out, err, user),
        out.ports.size() == 20 && out.ports[0]["priority"] == "critical");
    ASK("alarmhost", AllAlarmLineCfg, J::GetRadarAlarmLineConfiguration(out, err, user),
        out.root["AlarmLineCfgList"][0]["AlarmLineCfg"]["name"] == "North fence");
}

/// A page of three.
template <class Description>
Description PageOfThree()
{
    Description description;
    description.searchID = "one";
    description.maxResults = 3;
    return description;
}

void WireTest::Searches()
{
    using J = JsonConfigApp;
    const auto isPage = [](const SearchResultPage& page, int total) {
        return page.numOfMatches == 3 && page.totalMatches == total &&
               page.responseStatusStrg == "MORE";
    };
    ASK("dome", PersonQueueCountingResult,
        J::SearchPersonQueueCounting(PageOfThree<PersonQueueCountingDescription>(), out, err, 1,
                                     user),
        isPage(out, 72));
    ASK("dome", PersonQueueTimeResult,
        J::SearchPersonQueueTime(PageOfThree<PersonQueueTimeDescription>(), out, err, 1, user),
        isPage(out, 72));
    ASK("dome", IntersectionAnalysisResult,
        J::SearchIntersectionAnalysis(PageOfThree<IntersectionAnalysisCondition>(), out, err, 1,
                                      user),
        isPage(out, 96));
    auto targets = PageOfThree<TargetSearchDescription>();
    ASK("recorder", TargetSearchResult, J::SearchTargetFiles(targets, out, err, user),
        isPage(out, 240));
    ASK("recorder", DataCenterTaskResult,
        J::getDataCenterResource(out, PageOfThree<DataCenterTaskCond>(), user), isPage(out, 32));
    auto behavior = PageOfThree<DeeplyThinkBehaviorDescription>();
    ASK("recorder", DeeplyThinkBehaviorSearch,
        J::getDeeplyThinkBehaviorSearchResult(behavior, out, err, user), isPage(out, 90));
    ImagesCmpDescription images;
    images.dataType = "URL";
    ASK("recorder", ImagesCmpResult, J::GetImagesComparision(images, out, err, user),
        out.root["imagesComparision"]["similarity"] == 87.5);

    auto women = PageOfThree<CaptureSearchDescription>();
    women.gender = "female";
    ASK("recorder", CaptureSearchResult, J::GetCaptureSearchResult(women, out, err, user),
        isPage(out, 90) && out.targets.size() == 3 && out.targets[2].gender == "female" &&
            out.targets[2].face_rect.width > 0);
    auto faces = PageOfThree<FDLibSearchDescription>();
    faces.hasTimeRange = true;
    faces.startTime = "2026-11-18T15:00:00";
    faces.endTime = "2026-11-18T15:30:00";
    ASK("recorder", FDLibSearchResult, J::GetFDLibFCSearchByJson(faces, out, err, user),
        out.MatchList.size() == 2 &&
            out.MatchList[1].human_data[0].Attendance.AttendStatus.late == 2 &&
            out.MatchList[1].human_data[0].Attendance.abnormalRate == "0.25");
}

void WireTest::Tasks()
{
    using J = JsonConfigApp;
    using Package = tagNET_ORB_XML_CONFIG_OUTPUT;
    auto faces = PageOfThree<FDLibSearchDescription>();
    const auto task =
        ASK("recorder", FDLibFCSearchPackageByJsonResult,
            J::GetFDLibFCSearchDataPackageTaskID(faces, out, err, user), !out.taskID.empty());
    ASK("recorder", FDLibFCSearchPackageByTaskID,
        J::GetFDLibFCSearchDataPackage(out, task.taskID, err, user), out.progress == 25);
    ASK("recorder", HFPDCaptureLibCollisionTask, J::GetHFPDCaptureLibCollisionTask(out, err, user),
        !out.taskID.empty());
    ASK("recorder", HFPDSearchProgress, J::GetHFPDSearchProgress(out, "12", err, user),
        out.progress.value == 25);
    ASK("recorder", HFPDSearchFaceResult, J::GetHFPDSearchRecordData(out, "12", err, user),
        out.numOfMatches == 20);
    for (const auto& [action, code] : {std::pair{0, 1}, {1, 1}, {3, 1}, {3, 1}, {1, 4}, {2, 1}}) {
        ASK("recorder", JsonStatus, J::GetHFPDManagementTask(out, action, 12, err, user),
            out.statusCode == code);
    }
    CaptureSearchDescription women;
    women.gender = "female";
    for (const Package& package :
         {ASK("recorder", Package, J::GetFCDataPackageByJson(women, out, err, user),
              out.returnedSize == 90 * 24576),
          ASK("recorder", Package, J::GetHFPDDataPackage(out, "pkg-3K", err, user),
              out.returnedSize == 3072)}) {
        delete[] static_cast<char*>(package.outBuffer);
    }
}

void WireTest::AlarmHost()
{
    using J = JsonConfigApp;
    const auto subSystem = [this](int number) {
        return Read("alarmhost",
                    "SecurityCP/status/subSystems")["SubSysList"][number - 1]["SubSys"];
    };
    const auto isBypassed = [this](int number) {
        return Read("alarmhost",
                    "SecurityCP/status/zones")["ZoneList"][number - 1]["Zone"]["bypassed"] == true;
    };
    AlarmHostBypassCfg zones;
    zones.zone = "17,20";
    // Open zones are bypassed; the status gives the reason for a refusal.
    ASK("alarmhost", JsonStatus, J::SetDevArming(out, "away", 3, err, user),
        out.statusCode == 4 && out.subStatusCode == "zoneOpen");
    ASK("alarmhost", JsonStatus, J::SetDevBypass(zones, out, err, -1, user), isBypassed(20));
    ASK("alarmhost", JsonStatus, J::SetDevBypass(zones, out, err, 21, user), isBypassed(21));
    ASK("alarmhost", JsonStatus, J::SetDevArming(out, "away", 3, err, user),
        subSystem(3)["arming"] == "away");
    ASK("alarmhost", JsonStatus, J::SetDevDisArm(out, 3, err, user),
        subSystem(3)["arming"] == "disarm");
    ASK("alarmhost", JsonStatus, J::SetDevBypassRecover(zones, out, err, -1, user),
        !isBypassed(17) && isBypassed(21));
    ASK("alarmhost", JsonStatus, J::SetDevBypassRecover(zones, out, err, 21, user),
        !isBypassed(21));
    EXPECT_EQ(subSystem(8)["alarm"], true);
    ASK("alarmhost", JsonStatus, J::SetDevClearAlarm(out, 8, err, user),
        subSystem(8)["alarm"] == false);

    AlarmHostOutputCfg outputs;
    outputs.switchState = "open";
    outputs.ids = {2, 77};
    ASK("alarmhost", JsonErrorStatusList, J::SetOutputControl(outputs, err, out, -1, user),
        out.errorList.size() == 1 && out.errorList[0].id == "77");
    ASK("alarmhost", JsonErrorStatusList, J::SetOutputControl(outputs, err, out, 3, user), true);
    const Json::Value states = Read("alarmhost", "SecurityCP/status/outputs")["OutputList"];
    EXPECT_EQ(states[1]["Output"]["switch"], "open");
    EXPECT_EQ(states[2]["Output"]["switch"], "open");

    ASK("alarmhost", AlarmHostZoneConfig, J::GetAlarmHostZoneConfiguration(out, err, user),
        out.zones.size() == 64 && out.zones[0].zoneName == "Front door");
    ASK("alarmhost", AlarmHostSubSystemConfig, J::GetSubSystemConfig(out, err, user),
        out.subSystems.size() == 8 && out.subSystems[7].linkageZones.size() == 8);
    ASK("alarmhost", TriggerListConfig, J::GetTriggerConfig(out, err, user),
        out.outputs.size() == 32 && out.outputs[0].linkageList.size() == 2);
    ASK("alarmhost", AlarmHostCommunicationStatus, J::GetAlarmHostCommuniStatus(out, err, user),
        out.mobileSignal == 72 && out.flow == 118.5);
}

void WireTest::Detectors()
{
    using J = JsonConfigApp;
    ASK("alarmhost", DetectorSilenceCap, J::GetDetectorSilenceCap(out, err, Handle(user)),
        out.cmd.opt.size() == 3 && out.channels.size() == 4);
    DetectorSilence command;
    command.cmd = "reset";
    for (const auto& [first, second] : {std::pair{5, -1}, {4, 1}}) {
        ASK("alarmhost", JsonStatus, J::SetDetectorSilence(out, command, err, first, second, user),
            out.statusCode == 1);
    }
    ASK("alarmhost", DetectorStates, J::GetDetectorStates(out, err, user),
        out.detectors.size() == 8 && out.detectors[4].Temperature.status == "normal" &&
            out.detectors[5].Gas.status == "expired");

    auto log = AlarmHostLogConditionDescription{"log", {}, {}, 0, 10};
    AlarmHostDeviceLogResult page;
    do {
        page = ASK("alarmhost", AlarmHostDeviceLogResult,
                   J::GetAlarmHostDeviceLog(log, out, err, user), out.numOfMatches > 0);
        log.searchResultPosition += page.numOfMatches;
    } while (page.responseStatusStrg == "MORE" && page.numOfMatches > 0);
    ASSERT_FALSE(page.matchList.empty());
    EXPECT_EQ(page.matchList.back().logDescriptor["event"], "reset");
}

/// The operations that a class's header declares.
std::set<std::string> Declared(const char* header)
{
    std::ifstream file(std::filesystem::path(HEADERS) / header);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const std::regex operation("static bool (\\w+)\\(");
    std::set<std::string> names;
    for (std::sregex_iterator at(text.begin(), text.end(), operation), end; at != end; ++at) {
        names.insert("J::" + (*at)[1].str());
    }
    return names;
}

TEST_P(WireTest, EveryJsonOperationIsAnsweredAndEverySettingReadBack)
{
    Capabilities();
    EXPECT_EQ(asked_, Declared("JsonTARN/JsonCap/JsonCapApp.h"));
    asked_.clear();
    Settings();
    Tables();
    Searches();
    Tasks();
    AlarmHost();
    Detectors();
    EXPECT_EQ(asked_, Declared("JsonTARN/JsonConfig/JsonConfigApp.h"));
}

}  // namespace
