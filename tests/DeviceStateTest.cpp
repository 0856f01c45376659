// The state of simulated cameras, recorders and switches, directly and through the library.
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <thread>

#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/AlarmHostAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/IntercomAbility.h"
#include "CapabilitySet/RecordAbility.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/SmartAbility.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/ThermalAbility.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"
#include "Device/DeviceModel.h"
#include "support/DeviceSteps.h"

namespace
{

using namespace CapabilitySet;
using ParseXmlHelper::InterfaceRet;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using TestSupport::Asked;

struct Row
{
    const char* method;
    const char* target;
    std::string body;
    int status;
    const char* part;  ///< of the answer
};

void Check(const char* profile, std::initializer_list<Row> rows)
{
    const auto model = TestSupport::LoadDevice(profile);
    for (const Row& row : rows) {
        const Device::Response response = model->Handle({row.method, row.target, row.body});
        EXPECT_EQ(response.status, row.status) << row.method << " " << row.target << row.body;
        EXPECT_THAT(response.body, HasSubstr(row.part)) << row.method << " " << row.target;
    }
}

constexpr const char* kRates = "/TARN/Transfers/Switches/portCfg/portRate/";
constexpr const char* kTracking = "/TARN/PTZCtrl/channels/1/moveAutoTracking?format=json";

std::string Rate(const std::string& id, const std::string& up)
{
    return "<PortRate><id>" + id + "</id><uplinkRate>" + up +
           "</uplinkRate><downlinkRate>7</downlinkRate></PortRate>";
}

std::string Rates(const std::string& items)
{
    return "<PortRateList version=\"v2.0\">" + items + "</PortRateList>";
}

TEST(DeviceStateTest, ValuesOutsideTheLimitsAreRefusedAndLeaveTheSetting)
{
    const std::string padded = Rates(Rate("24", "1000000")) + std::string(50, '\0') + "garbage";
    Check("switch", {{"PUT", kRates, Rates(Rate("25", "1")), 400, "badParameters"},
                     {"PUT", kRates, Rates(Rate("0", "1")), 400, "badParameters"},
                     {"PUT", kRates, Rates(Rate("3", "-1")), 400, "badParameters"},
                     {"PUT", kRates, Rates(Rate("3", "12k")), 400, "badParameters"},
                     {"PUT", kRates, Rates(Rate("3", "99999999999")), 400, "badParameters"},
                     {"PUT", kRates, Rates(Rate("3", "5") + Rate("25", "5")), 400, "badParameters"},
                     {"PUT", kRates, Rates(""), 400, "badParameters"},
                     {"PUT", kRates, "<PortInfoList/>", 400, "badXmlContent"},
                     {"GET", kRates, "", 200, "<id>3</id>\n    <uplinkRate>20000<"},
                     {"PUT", kRates, padded, 200, "ok"},
                     {"GET", kRates, "", 200, "<uplinkRate>1000000<"}});
    Check("dome", {{"PUT", kTracking, R"({"MoveAutoTracking": {"enabled": true}})", 200, "\"ok\""},
                   {"PUT", kTracking, R"({"MoveAutoTracking": {"enabled": "false"}})", 400, "badP"},
                   {"PUT", kTracking, R"({"MoveAutoTracking": {"enabled": 0}})", 400, "badP"},
                   {"PUT", kTracking, R"({"MoveAutoTracking": {}})", 400, "badParameters"},
                   {"PUT", kTracking, R"({"MoveAutoTracking": [{}, null]})", 400, "badParameters"},
                   {"GET", kTracking, "", 200, "\"enabled\": true"}});
}

TEST(DeviceStateTest, MergedListsKeepTheItemsThatAPutDoesNotHold)
{
    constexpr const char* kPresets = "/TARN/PTZCtrl/channels/1/presets";
    const auto preset = [](const char* id, const char* name) {
        return std::string("<PTZPresetList><PTZPreset><enabled>true</enabled><id>") + id +
               "</id><presetName>" + name + "</presetName></PTZPreset></PTZPresetList>";
    };
    Check("dome", {{"PUT", kPresets, preset("2", "a &amp; b"), 200, "ok"},
                   {"PUT", kPresets, preset("300", "last"), 200, "ok"},
                   {"PUT", kPresets, preset("301", "none"), 400, "badParameters"},
                   {"PUT", kPresets, preset("3", std::string(600'000, 'x').c_str()), 200, "ok"},
                   {"PUT", kPresets, preset("4", std::string(600'000, 'x').c_str()), 413, "Large"},
                   {"GET", kPresets, "", 200, "<id>2</id>\n    <presetName>a &amp; b<"},
                   {"GET", kPresets, "", 200, "<id>300</id>"},
                   {"GET", kPresets, "", 200, "North gate"}});
}

TEST(DeviceStateTest, ChannelsOfARecorderDiffer)
{
    const auto ask = [](const char* root, int channel) {
        return std::string("<") + root + "><channelNO>" + std::to_string(channel) +
               "</channelNO></" + root + ">";
    };
    constexpr const char* kAbility = "/TARN/SDK/deviceAbility/17";
    Check("recorder",
          {{"GET", "/TARN/PTZCtrl/channels/23/presets", "", 200, "Fence north middle"},
           {"GET", "/TARN/PTZCtrl/channels/25/presets", "", 200, "Railway crossing"},
           {"GET", "/TARN/PTZCtrl/channels/1/presets", "", 404, "notSupport"},
           {"GET", "/TARN/PTZCtrl/channels/25/moveAutoTracking?format=json", "", 200, "enabled"},
           {"GET", "/TARN/PTZCtrl/channels/1/moveAutoTracking?format=json", "", 404, "notSupport"},
           {"GET", "/TARN/PTZCtrl/channels/99/moveAutoTracking?format=json", "", 400, "invalidC"},
           {"GET", "/TARN/Event/channels/19/capabilities", "", 200, "fireDetection"},
           {"GET", "/TARN/Event/channels/23/capabilities", "", 200, "<channelID>23<"},
           {"POST", kAbility, ask("PTZAbility", 39), 200, "<channelNO>39<"},
           {"POST", kAbility, ask("PTZAbility", 1), 404, "notSupport"},
           {"POST", kAbility, ask("PTZAbility", 77), 400, "invalidChannel"},
           {"POST", kAbility, ask("EventAbility", 41), 200, "<trackEnable"}});
}

std::string Search(const std::string& id, const std::string& tracks, const std::string& spans,
                   const std::string& size, const std::string& position = "0")
{
    return "<CMSearchDescription><searchID>" + id + "</searchID><trackIDList>" + tracks +
           "</trackIDList><timeSpanList>" + spans + "</timeSpanList><maxResults>" + size +
           "</maxResults><searchResultPosition>" + position +
           "</searchResultPosition></CMSearchDescription>";
}

std::string Span(const std::string& start, const std::string& end)
{
    return "<timeSpan><startTime>" + start + "</startTime><endTime>" + end +
           "</endTime></timeSpan>";
}

TEST(DeviceStateTest, ContentSearchesThatMakeNoSenseAreRefused)
{
    constexpr const char* kPath = "/TARN/ContentMgmt/search";
    const std::string track = "<trackID>101</trackID>";
    const std::string noon = Span("2026-11-17T12:00:00Z", "2026-11-17T12:00:01Z");
    Check(
        "recorder",
        {{"POST", kPath, Search("a&lt;b", track, noon, "5"), 200, "<searchID>a&lt;b<"},
         {"POST", kPath, Search("a", track, noon, "5") + std::string(9, '\0'), 200, "matchList"},
         {"POST", kPath, Search("a", "<trackID>102</trackID>", "", "5"), 200, "NO MATCHES"},
         {"POST", kPath,
          Search("a", track, Span("2030-01-01T00:00:00Z", "2031-01-01T00:00:00Z"), "5"), 200,
          "NO MATCHES"},
         {"POST", kPath, Search("a", track, "", "5", "2147483647"), 200, "<numOfMatches>0<"},
         {"POST", kPath, Search("a", "", "", "2147483647"), 200, "<numOfMatches>100<"},
         {"POST", kPath, Search("", track, noon, "5"), 400, "badParameters"},
         {"POST", kPath, Search("a", track, noon, "0"), 400, "badParameters"},
         {"POST", kPath, Search("a", track, noon, "5", "-1"), 400, "badParameters"},
         {"POST", kPath, Search("a", "<trackID>main</trackID>", noon, "5"), 400, "badParameters"},
         {"POST", kPath, Search("a", "<trackID>3301</trackID>", noon, "5"), 400, "invalidChannel"},
         {"POST", kPath, Search("a", track, Span("yesterday", "now"), "5"), 400, "badParameters"},
         {"POST", kPath,
          Search("a", track, Span("2026-11-18T00:00:00Z", "2026-11-17T00:00:00Z"), "5"), 400,
          "badParameters"},
         {"POST", kPath, "<Search/>", 400, "badXmlContent"},
         {"POST", kPath, "<Search/>" + std::string(70'000, ' '), 413, "bodyTooLarge"},
         {"POST", kPath, "<CMSearchDescription>", 400, "badXmlFormat"},
         {"POST", kPath, "", 400, "badXmlFormat"},
         {"GET", kPath, "", 405, "methodNotAllowed"}});
    Check("switch", {{"POST", kPath, Search("a", track, noon, "5"), 404, "notSupport"}});
}

TEST(DeviceStateTest, BodiesCutAnywhereAndThreadsAtOnceAreAnswered)
{
    const auto model = TestSupport::LoadDevice("recorder");
    const auto yard = TestSupport::LoadDevice("switch");
    const std::string search = Search("x", "<trackID>101</trackID>", "", "9");
    const std::string rates = Rates(Rate("3", "5") + Rate("4", "6"));
    const auto cutAll = [&] {
        for (size_t i = 0; i < search.size(); i += 3) {
            const std::string cut = search.substr(0, i);
            EXPECT_GE(model->Handle({"POST", "/TARN/ContentMgmt/search", cut}).status, 400);
        }
        for (size_t i = 0; i < rates.size(); i += 3) {
            std::string changed = rates;
            changed[i] = static_cast<char>('!' + i % 90);
            yard->Handle({"PUT", kRates, changed});
            EXPECT_EQ(yard->Handle({"PUT", kRates, rates}).status, 200);
            EXPECT_THAT(yard->Handle({"GET", kRates, ""}).body, HasSubstr("<id>24</id>"));
        }
    };
    std::thread other(cutAll);
    cutAll();
    other.join();
}

ON_EVERY_ROAD(AskedDeviceTest);

bool Succeeded(const InterfaceRet& result)
{
    return result.success && result.errorType == 0;
}

// Gets a record, sets it changed, and gets it again.
template <class Record, class Change>
void SetAndGet(InterfaceRet (*get)(Record&, int), InterfaceRet (*set)(const Record&, int),
               int device, Change change)
{
    Record record;
    ASSERT_TRUE(Succeeded(get(record, device))) << Record::kElement;
    change(record);
    ASSERT_TRUE(Succeeded(set(record, device))) << Record::kElement;
    Record again;
    ASSERT_TRUE(Succeeded(get(again, device))) << Record::kElement;
    EXPECT_TRUE(SameFields(record, again)) << Record::kElement;
}

TEST_P(AskedDeviceTest, ASwitchIsReadAndSetThroughTheLibrary)
{
    const Asked device = Login("switch");
    using P = ParamInterface;
    SetAndGet<SwitchesBasicInfo>(
        &P::GetSwitchesBasicInfo, &P::SetSwitchesBasicInfo, device,
        [](auto& info) { info.IPAddress.DefaultGateway.ipAddress = "10.0.0.1"; });
    SetAndGet<PortRateList>(&P::GetPortRates, &P::SetPortRates, device,
                            [](auto& rates) { rates.portRate.at(23)->uplinkRate = 12; });
    SetAndGet<Wireless>(&P::GetWireless, &P::SetWireless, device, [](auto& wireless) {
        wireless.channel = "36";
        wireless.ssid = "a & b";
    });
    SetAndGet<CBridgeRegion>(&P::GetBridgeRegion, &P::SetBridgeRegion, device,
                             [](auto& region) { region.countryID = 40; });
    SetAndGet<DiscoveryMode>(&P::GetDiscoveryMode, &P::SetDiscoveryMode, device,
                             [](auto& mode) { mode.PcapMode = !mode.PcapMode; });
    PortInfoList ports;
    DeviceStatus status;
    AppList apps;
    ASSERT_TRUE(Succeeded(P::GetPortInfo(ports, device)));
    ASSERT_TRUE(Succeeded(P::GetDeviceStatus(status, device)));
    ASSERT_TRUE(Succeeded(P::GetApps(apps, device)));
    EXPECT_EQ(ports.portInfo.size(), 24U);
    EXPECT_EQ(ports.portInfo.at(23)->portType, "optical");
    EXPECT_EQ(status.TemperatureList.size(), 3U);
    EXPECT_EQ(status.PressureList.at(0)->pressure, 101.3);
    EXPECT_EQ(apps.app.at(2)->runStatus, "stopped");
}

TEST_P(AskedDeviceTest, ARefusalReachesTheClientWithItsStatus)
{
    const Asked device = Login("switch");
    auto& manager = ParseXmlHelper::SDKInterfaceManager::instance();
    std::vector<std::string> heard;
    manager.setXmlErrorTransCallBack([&](int code, const std::string& subStatus) {
        heard.push_back(std::to_string(code) + " " + subStatus);
        return 77;
    });
    const InterfaceRet refused{false, 3, 77};
    PortRateList rates;
    rates.portRate.push_back(std::make_shared<PortRate>());
    EXPECT_EQ(ParamInterface::SetPortRates(rates, device), refused);
    Wireless wireless;
    ASSERT_TRUE(Succeeded(ParamInterface::GetWireless(wireless, device)));
    wireless.channel = "15";
    EXPECT_EQ(ParamInterface::SetWireless(wireless, device), refused);
    SwitchesWorkStateSearchResult states;
    EXPECT_EQ(ParamInterface::SearchSwitchesWorkState({}, states, device), refused);
    CMSearchResult found;
    EXPECT_EQ(ConfigCapXML::SearchContent({}, found, device), refused);
    EXPECT_EQ(ConfigCapXML::SearchContent({}, found, Login("recorder")), refused);
    EXPECT_THAT(heard, ElementsAre("6 badParameters", "6 badParameters", "6 badParameters",
                                   "4 notSupport", "6 badParameters"));
    manager.setXmlErrorTransCallBack(nullptr);
}

// Fetches page after page; returns the texts at `item` and `key` of all of them.
template <class Result, class Ask>
std::vector<std::string> AllPages(const char* list, const char* key, Ask ask)
{
    std::vector<std::string> texts;
    for (int position = 0; position < 10'000;) {
        Result page;
        if (!Succeeded(ask(page, position)) || page.Find("searchID").text != "one") {
            ADD_FAILURE() << "no page at " << position;
            break;
        }
        const auto& items = page.Find(list).children;
        EXPECT_EQ(page.Find("numOfMatches").text, std::to_string(items.size()));
        for (const AbilityElement& item : items) {
            texts.push_back(item.Find(key).text);
        }
        position += static_cast<int>(items.size());
        if (page.Find("responseStatusStrg").text != "MORE") {
            EXPECT_EQ(page.Find("totalMatches").text, std::to_string(texts.size()));
            break;
        }
    }
    return texts;
}

TEST_P(AskedDeviceTest, PagesAddUpToEveryMatchOnce)
{
    const Asked yard = Login("switch");
    const auto ports = AllPages<SwitchesWorkStateSearchResult>(
        "PortWorkStateList", "id", [&](auto& page, int position) {
            SwitchesWorkStateSearchCond condition;
            condition.searchID = "one";
            condition.maxMatchResults = 7;
            condition.searchResultsPosition = position;
            return ParamInterface::SearchSwitchesWorkState(condition, page, yard);
        });
    EXPECT_EQ(ports.size(), 24U);
    EXPECT_EQ(std::set(ports.begin(), ports.end()).size(), 24U);

    const Asked recorder = Login("recorder");
    CMSearchDescription description;
    description.searchID = "one";
    description.trackIDList.trackID = {"101", "2301"};
    description.timeSpanList.timeSpan.push_back(std::make_shared<TimeSpan>());
    description.timeSpanList.timeSpan[0]->startTime = "2026-11-18T00:00:00Z";
    description.timeSpanList.timeSpan[0]->endTime = "2026-11-19T00:00:00Z";
    const auto found = [&](int size) {
        return AllPages<CMSearchResult>(
            "matchList", "mediaSegmentDescriptor/playbackURI", [&](auto& page, int position) {
                description.maxResults = size;
                description.searchResultPosition = position;
                return ConfigCapXML::SearchContent(description, page, recorder);
            });
    };
    const auto uris = found(8);
    EXPECT_GT(uris.size(), 40U);
    EXPECT_EQ(uris, found(13));
    EXPECT_EQ(std::set(uris.begin(), uris.end()).size(), uris.size());
    for (const std::string& uri : uris) {
        EXPECT_THAT(uri, HasSubstr("starttime=20261118T"));
        EXPECT_THAT(uri, testing::AnyOf(HasSubstr("/101/"), HasSubstr("/2301/")));
    }
}

template <class List>
List Listed(int device, int channel, const std::string& kind)
{
    const TestSupport::Outcome outcome = TestSupport::Ask(
        device, "GET /TARN/PTZCtrl/channels/" + std::to_string(channel) + "/" + kind, "", {20'000});
    EXPECT_TRUE(outcome.success) << kind;
    return List(outcome.answer);
}

TEST_P(AskedDeviceTest, PtzChannelsShowTheirListsAndKeepTheirTracking)
{
    const Asked dome = Login("dome");
    const Asked recorder = Login("recorder");
    for (const auto& [device, sdk, channel] :
         {std::tuple<int, int, int>{dome, 1, 1}, {recorder, 39, 23}, {recorder, 41, 25}}) {
        const auto presets = Listed<CPTZPresetListCfg>(device, channel, "presets").presets;
        const auto positions = Listed<CVelTarnPTZPresetList>(device, channel, "presets").presets;
        EXPECT_EQ(presets.size(), positions.size());
        EXPECT_TRUE(std::ranges::any_of(presets, [](auto& preset) { return !preset.enabled; }));
        EXPECT_TRUE(
            std::ranges::any_of(positions, [](auto& preset) { return preset.azimuth > 0; }));
        EXPECT_FALSE(Listed<CVelTarnPTZPatternList>(device, channel, "patterns").patterns.empty());
        const auto patrols = Listed<CVelTarnPTZPatrolList>(device, channel, "patrols").patrols;
        ASSERT_FALSE(patrols.empty());
        EXPECT_FALSE(patrols[0].steps.empty());

        CVelTarnPTZAutoTracking tracking;
        for (const bool enable : {true, false}) {
            EXPECT_TRUE(CVelTarnPTZAutoTracking::SetAutoTrackingState(device, sdk, enable));
            EXPECT_TRUE(CVelTarnPTZAutoTracking::GetAutoTrackingState(device, sdk, tracking));
            EXPECT_EQ(tracking.enabled, enable);
        }
    }
    CVelTarnPTZAutoTracking tracking;
    EXPECT_FALSE(CVelTarnPTZAutoTracking::GetAutoTrackingState(recorder, 1, tracking));
}

// Expects a device to answer with a document that fills the record.
template <class Record, class Error, class... Parameters, class... Arguments>
void Answers(const Asked& device, bool (*get)(Record&, Error, int, Parameters...),
             const Arguments&... arguments)
{
    unsigned int err = 0;
    Record record;
    EXPECT_TRUE(get(record, err, device, static_cast<Parameters>(arguments)...))
        << Record::kRoot << " " << err;
    EXPECT_TRUE(record.capable) << Record::kRoot;
    EXPECT_FALSE(record.root.children.empty()) << Record::kRoot;
}

TEST_P(AskedDeviceTest, EveryAbilityIsAnsweredBySomeDevice)
{
    Answers(Login("recorder"), &AlarmHostAbility::GetAlarmHostAbility, true);
    Answers(Login("dome"), &AlarmForHelpAbility::GetAlarmForHelpAbility, 1);
    Answers(Login("recorder"), &AudioVideoCompressInfo::GetAudioVideoCompressInfo, 1, 1, 39);
    Answers(Login("recorder"), &CVRAbility::GetCVRAbility);
    Answers(Login("dome"), &CameraPara::GetCameraParam, std::vector{1});
    Answers(Login("recorder"), &ChannelInfoAbility::GetChannelInfoAbility, 41, "");
    Answers(Login("recorder"), &ChannelInputAbility::GetChannelInputAbility, 33, "");
    Answers(Login("recorder"), &ClusterCapability::GetClusterCap);
    Answers(Login("recorder"), &CodeSubSystemAbility::GetCodeSubSystemAbility, 1, "");
    Answers(Login("recorder"), &CustomStreamCap::GetCustomStreamAbility, 1);
    Answers(Login("recorder"), &DecoderAbility::GetDecoderAbility);
    Answers(Login("switch"), &DeviceCap::GetDeviceCapability);
    Answers(Login("switch"), &DiscoveryModeCap::getDiscoveryModeAbility);
    Answers(Login("recorder"), &DynChannelAbility::GetDynChannelAbility, 39);
    Answers(Login("recorder"), &FishEyeAbility::GetFishEyeAbility, 34, "");
    Answers(Login("recorder"), &IntercomDeviceIpViewAbility::GetIntercomDeviceIpViewAbility, 1);
    Answers(Login("recorder"), &IntercomNoticeVideoAbility::GetNoticeVideoCapability, 1);
    Answers(Login("recorder"), &ManualThermometryCap::GetManualThermometryAbility, 35);
    Answers(Login("switch"), &NetAppAbility::GetNetAppAbility, "");
    Answers(Login("recorder"), &PTZAbility::GetPTZAbility, 39);
    Answers(Login("dome"), &RecordAbility::GetRecordAbility);
    Answers(Login("dome"), &RegionBaggageCap::GetRegionBaggageAbility, 1);
    Answers(Login("dome"), &RegionExitingCap::GetRegionExitingAbility, 1);
    Answers(Login("dome"), &RegionParkingCap::GetRegionParkingAbility, 1);
    Answers(Login("dome"), &RegionUnBaggageCap::GetRegionUnBaggageAbility, 1);
    Answers(Login("switch"), &SecurityAbility::GetSecurityAbility);
    Answers(Login("recorder"), &SmartCap::GetSmartCapAbility, 1);
    Answers(Login("switch"), &SystemDeviceCap::GetSystemDeviceAbility);
    Answers(Login("recorder"), &ThermalCap::GetThermalCapability, 35);
    Answers(Login("switch"), &UserAbility::GetUserAbility, "");
    Answers(Login("dome"), &VcaAbility::GetVcaAbility, 1);
    Answers(Login("recorder"), &VehicleInfoResultCap::GetVehicleInfoResultCapAbility, 36);
    Answers(Login("dome"), &VideoPicAbility::GetVideoPicAbility, 1, "");
    Answers(Login("recorder"), &VideoPlatformAbility::GetVideoPlatformAbility, "");
    Answers(Login("recorder"), &WallAbility::GetWallAbility, 1, 1);
}

// A channel's documents agree with each other and with the device's about PTZ and events.
TEST_P(AskedDeviceTest, EventsOfAChannelAgreeWithTheDevice)
{
    struct Channel
    {
        const char* device;
        unsigned number;
        bool ptz;
    };
    for (const Channel& channel : {Channel{"dome", 1, true},
                                   {"recorder", 1, false},
                                   {"recorder", 33, false},
                                   {"recorder", 39, true},
                                   {"switch", 1, false}}) {
        SCOPED_TRACE(std::string(channel.device) + " " + std::to_string(channel.number));
        const Asked device = Login(channel.device);
        unsigned err = 0;
        BasicCapability basic;
        EventAbility events;
        EventTriggerCap triggers;
        ASSERT_TRUE(BasicCapability::GetBasicCapability(basic, err, device));
        ASSERT_TRUE(EventAbility::GetEventAbility(events, err, device, channel.number));
        ASSERT_TRUE(
            EventTriggerCap::GetEventTriggerCapAbility(triggers, err, device, channel.number));
        const auto& io = triggers.IOTriggerCap;
        AlarmAbility alarms;
        EXPECT_EQ(AlarmAbility::GetAlarmAbility(alarms, err, device, channel.number),
                  basic.hardware.VideoInNum > 0);
        EXPECT_EQ(events.track.capable, channel.ptz);
        EXPECT_EQ(events.vcaDetection.ptzTrack, channel.ptz);
        EXPECT_EQ(io.isSupportPTZ, channel.ptz);
        EXPECT_EQ(io.maxPresetActionNum > 0, channel.ptz);
        EXPECT_LE(channel.ptz, basic.software.PtzSupport);
        EXPECT_EQ(events.alarmIn.capable, basic.hardware.AlarmInPortNum > 0);
        EXPECT_EQ(io.isSupportFTP, basic.software.UploadFTP);
        EXPECT_EQ(triggers.DiskfullTriggerCap.capable,
                  basic.hardware.HardDiskNum + basic.hardware.SDNum > 0);
    }
}

}  // namespace
