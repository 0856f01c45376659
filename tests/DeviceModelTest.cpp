// The simulated device: profiles, answers, settings, and the hostile documents.
// SPDX-License-Identifier: Apache-2.0
#include "Device/DeviceModel.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <stdexcept>
#include <thread>

#include "Device/Limits.h"
#include "Device/hostile/HostileDocuments.h"
#include "support/TemporaryFolder.h"

using Device::DeviceModel;
using Device::Response;
using testing::HasSubstr;

namespace
{

// A profile folder that lives as long as the test.
class ProfileFolder : public testing::Test
{
protected:
    void Write(const std::string& name, const std::string& text) const
    {
        std::ofstream(folder_ / name, std::ios::binary) << text;
    }

    std::string LoadError(const std::string& manifest) const
    {
        Write("manifest.json", manifest);
        std::string error;
        EXPECT_EQ(DeviceModel::Load(folder_.string() + "/", error), nullptr) << manifest;
        return error;
    }

    std::shared_ptr<DeviceModel> LoadSample() const
    {
        Write("basic.xml", "<BasicCapability/>");
        Write("ptz.xml", "<PTZAbility><channelNO>{channel}</channelNO></PTZAbility>");
        Write("alarm.xml", "<AlarmAbility>{channel}</AlarmAbility>");
        Write("stream.xml", "<CustomStreamCap>{channel}-{channel}</CustomStreamCap>");
        Write("time.xml", "<Time>0</Time>");
        Write("name.xml", "<Name>{channel}</Name>");
        Write("deice.json", R"({"Deice": {"on": false}})");
        Write("plain.txt", "plain");
        Write("manifest.json", R"({
          "name": "sample", "description": "for tests",
          "users": [{"name": "admin", "password": "one"}],
          "channels": {"1": 1, "2": 2, "33": 101},
          "answers": [
            {"request": "deviceAbility 1", "file": "basic.xml"},
            {"request": "deviceAbility 17 PTZAbility", "file": "ptz.xml"},
            {"request": "deviceAbility 10 AlarmAbility", "file": "alarm.xml"},
            {"request": "stdAbility 4360", "file": "ptz.xml"},
            {"request": "/TARN/channels/{channel}/stream", "file": "stream.xml"},
            {"request": "GET /TARN/audio/{sdkChannel}/test", "file": "stream.xml"},
            {"request": "GET /TARN/tasks/{any}/progress", "file": "plain.txt"},
            {"request": "GET /TARN/tasks/all/progress", "file": "basic.xml"},
            {"request": "GET /TARN/find", "file": "plain.txt"},
            {"request": "GET /TARN/find?format=json&kind=a b", "file": "deice.json"},
            {"request": "POST /TARN/reboot", "status": "ok"},
            {"request": "POST /TARN/time", "status": "deviceBusy"},
            {"request": "/TARN/time", "file": "time.xml", "setting": true},
            {"request": "/TARN/channels/{channel}/name", "file": "name.xml", "setting": true},
            {"request": "/TARN/deice?format=json", "file": "deice.json", "setting": true}]})");
        std::string error;
        auto model = DeviceModel::Load(folder_.string(), error);
        return model ? model : throw std::runtime_error(error);
    }

    const TestSupport::TemporaryFolder temporary_;
    const std::filesystem::path folder_ = temporary_.Path();
};

struct Exchange
{
    const char* method;
    std::string target;
    std::string body;
    int status;
    const char* answer;  // a part of it
};

void Check(DeviceModel& model, std::initializer_list<Exchange> exchanges)
{
    for (const Exchange& exchange : exchanges) {
        const Response response = model.Handle({exchange.method, exchange.target, exchange.body});
        const std::string what = exchange.target + " " + exchange.body;
        EXPECT_EQ(response.status, exchange.status) << what;
        EXPECT_THAT(response.body, HasSubstr(exchange.answer)) << what;
    }
}

TEST_F(ProfileFolder, AnswersWhatWasAskedForTheChannelThatWasAskedAbout)
{
    const auto ptz = [](const char* channel) {
        return std::string("<PTZAbility><channelNO>") + channel + "</channelNO></PTZAbility>";
    };
    const std::string code17 = "/TARN/SDK/deviceAbility/17";
    Check(*LoadSample(),
          {{"POST", "/TARN/SDK/deviceAbility/1", "", 200, "<BasicCapability/>"},
           {"POST", code17, ptz(" 2 "), 200, "<channelNO>2<"},
           {"POST", code17, ptz("33"), 200, "<channelNO>33<"},
           {"POST", code17, ptz("0xff"), 200, "<channelNO>1<"},
           {"POST", code17, ptz("7"), 400, "invalidChannel"},
           {"POST", code17, ptz("x"), 400, "invalidChannel"},
           {"POST", code17, "<PTZAbility/>", 200, "<channelNO>1<"},
           {"POST", code17, "<OtherAbility/>", 404, "notSupport"},
           {"POST", code17, "<PTZAbility>", 400, "badXmlFormat"},
           {"POST", code17, "<!DOCTYPE PTZAbility><PTZAbility/>", 400, "badXmlFormat"},
           {"POST", "/TARN/SDK/deviceAbility/10",
            "<AlarmAbility><channelID>101</channelID></AlarmAbility>", 200, ">101<"},
           {"GET", "/TARN/SDK/stdAbility/4360?channel=2", "", 200, "<channelNO>2<"},
           {"GET", "/TARN/SDK/stdAbility/4360?channel=3", "", 400, "invalidChannel"},
           {"GET", "/TARN/SDK/stdAbility/1?channel=1", "", 404, "notSupport"},
           {"GET", "/TARN/SDK/channels/33?mode=1", "", 200, "101"},
           {"GET", "/TARN/SDK/channels/101?mode=1", "", 400, "invalidChannel"},
           {"GET", "/TARN/channels/101/stream", "", 200, ">101-101<"},
           {"GET", "/TARN/channels/33/stream", "", 400, "invalidChannel"},
           {"GET", "/TARN/channels/one/stream", "", 404, "notSupport"},
           {"GET", "/TARN/channels/99999999999/stream", "", 404, "notSupport"},
           {"GET", "/TARN/audio/33/test", "", 200, ">33-33<"}});
}

TEST_F(ProfileFolder, TheClosestAnswerWinsAndRefusalsSayWhy)
{
    Check(*LoadSample(),
          {{"GET", "/TARN/tasks/12/progress", "", 200, "plain"},
           {"GET", "/TARN/tasks/all/progress", "", 200, "BasicCapability"},
           {"GET", "/TARN/find?x=1", "", 200, "plain"},
           {"GET", "/TARN/find?kind=a%20b&x=1&format=json", "", 200, "Deice"},
           {"POST", "/TARN/find", "", 405, "methodNotAllowed"},
           {"POST", "/TARN/reboot", "", 200, "<statusCode>1</statusCode>"},
           {"POST", "/TARN/reboot?format=json", "{\"a\": ", 400, "\"badJsonFormat\""},
           {"GET", "/TARN/no<such>&\x01?a", "", 404,
            "<requestURL>/TARN/no%3Csuch%3E&amp;%01?a</requestURL>"},
           {"GET", "/TARN/none?a=1&format=json", "", 404, "\"subStatusCode\" : \"notSupport\""},
           {"GET", "", "", 404, "notSupport"}});
}

TEST_F(ProfileFolder, AMethodThatIsNotAllowedNamesThoseThatAre)
{
    using Methods = std::set<std::string>;
    const auto allowed = [model = LoadSample()](const std::string& target) {
        return model->Handle({"DELETE", target, ""}).allowed;
    };
    EXPECT_EQ(allowed("/TARN/find"), Methods{"GET"});
    EXPECT_EQ(allowed("/TARN/time"), (Methods{"GET", "POST", "PUT"}));
    EXPECT_EQ(allowed("/TARN/SDK/channels/1"), Methods{"GET"});
    EXPECT_EQ(allowed("/TARN/none"), Methods{});
}

TEST_F(ProfileFolder, SettingsAreReadBackAndKeptFromForeignDocuments)
{
    const auto model = LoadSample();
    const std::string padded = std::string("{\"Deice\": {\"on\": true}}") + std::string(100, '\0');
    Check(*model, {{"GET", "/TARN/time", "", 200, "<Time>0</Time>"},
                   {"PUT", "/TARN/time", "<Time>5</Time>", 200, "<subStatusCode>ok<"},
                   {"GET", "/TARN/time", "", 200, "<Time>5</Time>"},
                   {"PUT", "/TARN/time", "<Name/>", 400, "badXmlContent"},
                   {"PUT", "/TARN/time", "<Time>", 400, "badXmlFormat"},
                   {"PUT", "/TARN/time", "", 400, "badXmlFormat"},
                   {"POST", "/TARN/time", "", 503, "deviceBusy"},
                   {"DELETE", "/TARN/time", "", 405, "methodNotAllowed"},
                   {"GET", "/TARN/time", "", 200, "<Time>5</Time>"},
                   {"PUT", "/TARN/channels/101/name", "<Name>gate</Name>", 200, "ok"},
                   {"PUT", "/TARN/channels/9/name", "<Name>gate</Name>", 400, "invalidChannel"},
                   {"GET", "/TARN/channels/101/name", "", 200, "gate"},
                   {"GET", "/TARN/channels/2/name", "", 200, "<Name>2</Name>"},
                   {"PUT", "/TARN/deice?format=json", padded, 200, "\"ok\""},
                   {"GET", "/TARN/deice?format=json", "", 200, "true"},
                   {"PUT", "/TARN/deice?format=json", "{\"Other\": 1}", 400, "badJsonContent"},
                   {"PUT", "/TARN/deice?format=json", "<Deice/>", 400, "badJsonFormat"}});
    EXPECT_EQ(model->Handle({"GET", "/TARN/deice?format=json", ""}).body.find('\0'),
              std::string::npos);
}

TEST_F(ProfileFolder, ThreadsSeeWholeSettings)
{
    const auto model = LoadSample();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            const std::string mine =
                "<Time>" + std::string(1000, static_cast<char>('a' + i)) + "</Time>";
            for (int k = 0; k < 200; ++k) {
                model->Handle({"PUT", "/TARN/time", mine});
                const std::string seen = model->Handle({"GET", "/TARN/time", ""}).body;
                EXPECT_EQ(seen.find_first_not_of(seen[6], 6), seen.size() - 7);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST_F(ProfileFolder, AFaultyManifestIsNamedByItsFault)
{
    Write("a.xml", "<a/>");
    Write("broken.xml", "<a>");
    Write("l.json", R"({"l": [{"repeat": 100000, "each": ")" + std::string(1000, 'x') + "\"}]}");
    const auto withAnswer = [](const std::string& answer) {
        return R"({"name": "n", "description": "d", "answers": [)" + answer + "]}";
    };
    const auto with = [](const std::string& member) {
        return R"({"name": "n", "description": "d", "answers": [], )" + member + "}";
    };
    const std::pair<std::string, const char*> cases[] = {
        {"", "not JSON"},
        {"[]", "object"},
        {R"({"name": 1})", "\"name\""},
        {R"({"name": "n", "description": "d"})", "\"answers\" is not an array"},
        {with(R"("answer": [])"), "there is no key \"answer\""},
        {with(R"("channels": [])"), "\"channels\" is not an object"},
        {with(R"("channels": {"x": 1})"), "\"x\""},
        {with(R"("channels": {"1": 1000001})"), "\"1\""},
        {with(R"("users": {})"), "\"users\" is not an array"},
        {with(R"("users": [1])"), "not an object"},
        {with(R"("users": [{"name": "a"}])"), "user \"a\": \"password\" is missing"},
        {with(R"("users": [{"name": "a:b", "password": "p"}])"), "a name is empty or contains"},
        {with(R"("users": [{"name": "a", "password": "p"}, {"name": "a", "password": "q"}])"),
         "listed twice"},
        {with(R"("state": [])"), "\"state\" is not an object"},
        {with(R"("recordings": {"start": "2026-02-30T00:00:00Z", "days": 1, "uri": "u"})"),
         "\"start\""},
        {withAnswer("7"), "answer 1 is not an object"},
        {withAnswer(R"({"request": "/a", "file": "a.xml", "setting": 1})"),
         "neither true nor false"},
        {withAnswer(R"({"request": "deviceAbility x", "file": "a.xml"})"), "deviceAbility <code>"},
        {withAnswer(R"({"request": "FETCH /a", "file": "a.xml"})"),
         "\"FETCH /a\" is not a request"},
        {withAnswer(R"({"request": "GET /a", "file": "a.xml", "setting": true})"),
         "without a method"},
        {withAnswer(R"({"request": "/a", "file": "broken.xml", "setting": true})"), "well-formed"},
        {withAnswer(R"({"request": "/a"})"), "either a \"file\" or a \"status\""},
        {withAnswer(R"({"request": "/a", "status": "x"})"), "no status \"x\""},
        {withAnswer(R"({"request": "/a", "status": "ok", "channels": 1})"), "\"channels\""},
        {withAnswer(R"({"request": "/a", "status": "ok", "values": [1]})"), "\"values\""},
        {withAnswer(R"({"request": "/a", "status": "ok", "values": {"b/c": {"min": 1}}})"),
         "\"b/c\": a value may be"},
        {withAnswer(R"({"request": "/a", "file": "a.xml", "merge": "b/c"})"), "\"merge\""},
        {withAnswer(R"({"request": "/a", "file": "a.xml", "setting": true, "merge": "b"})"),
         "\"<item>/<key>\""},
        {withAnswer(R"({"request": "/a", "file": "a.xml", "pages": {"item": "b"}})"), "\"pages\""},
        {withAnswer(R"({"request": "POST /a", "file": "l.json", "search": {"list": "l"}})"),
         "expand to more than"},
        {withAnswer(R"({"request": "/a", "status": "ok"}, {"request": "/a", "status": "ok"})"),
         "answered twice"},
    };
    for (const auto& [manifest, part] : cases) {
        EXPECT_THAT(LoadError(manifest), HasSubstr(part)) << manifest;
    }
    std::string error;
    EXPECT_EQ(DeviceModel::Load("/no/such/folder", error), nullptr);
    EXPECT_THAT(error, HasSubstr("cannot read \"manifest.json\""));
    EXPECT_EQ(DeviceModel::Load("nosuch", error), nullptr);
    EXPECT_THAT(error, HasSubstr("hostile"));
}

TEST_F(ProfileFolder, OnlyRegularFilesBeneathTheFolderAreRead)
{
    const std::string manifest =
        R"({"name": "n", "description": "d", "answers": [{"request": "/a", "file": "FILE"}]})";
    const std::filesystem::path outside = folder_ / "outside";
    const std::filesystem::path profile = folder_ / "profile";
    std::filesystem::create_directories(profile / "sub");
    Write("outside", "secret");
    Write("profile/sub/a.xml", "<a/>");
    std::filesystem::create_symlink(outside, profile / "link");
    std::filesystem::create_symlink("sub", profile / "folderLink");
    std::filesystem::create_symlink("/dev/zero", profile / "zero");
    ASSERT_EQ(mkfifo((profile / "fifo").c_str(), 0600), 0);
    Write("profile/large", "");
    std::filesystem::resize_file(profile / "large", Device::kMostProfileFile + 1);
    const std::pair<const char*, const char*> cases[] = {
        {"link", "symbolic link"},     {"folderLink/a.xml", "Not a directory"},
        {"zero", "symbolic link"},     {"fifo", "not a regular file"},
        {"sub", "not a regular file"}, {"large", "more than 16 MiB"},
        {"../outside", "not beneath"}, {"/etc/passwd", "not beneath"},
        {"sub//a.xml", "not beneath"}, {"none.xml", "No such file"},
    };
    for (const auto& [file, reason] : cases) {
        std::string text = manifest;
        Write("profile/manifest.json", text.replace(text.find("FILE"), 4, file));
        std::string error;
        EXPECT_EQ(DeviceModel::Load(profile.string(), error), nullptr) << file;
        EXPECT_THAT(error, HasSubstr(reason)) << file;
    }
    std::string error;
    std::string text = manifest;
    Write("profile/manifest.json", text.replace(text.find("FILE"), 4, "sub/a.xml"));
    EXPECT_NE(DeviceModel::Load(profile.string(), error), nullptr) << error;
}

std::string Repeated(const std::string& text, size_t bytes)
{
    std::string out;
    while (out.size() < bytes) {
        out += text;
    }
    return out;
}

// A quadratic reader takes minutes for each of these bodies.
TEST_F(ProfileFolder, BodiesThatMakeReadersSlowAreRefusedOrReadInLinearTime)
{
    constexpr size_t kSize = 1'000'000;
    std::string attributes;
    std::string ids;
    std::string namespaces;
    for (int i = 0; attributes.size() < kSize; ++i) {
        const std::string number = std::to_string(i);
        attributes += " a" + number + "=''";
        ids += ids.size() < kSize ? "<a xml:id='a" + number + "'/>" : "";
        namespaces += i < 20'000 ? "<a xmlns:n" + number + "='" + number + "'/>" : "";
    }
    const std::string in256 = Repeated("<a>", 768);
    Check(*LoadSample(),
          {{"PUT", "/TARN/time", "<Time" + attributes + "/>", 400, "badXmlFormat"},
           {"PUT", "/TARN/time", "<Time>" + ids + "</Time>", 400, "badXmlFormat"},
           {"PUT", "/TARN/time", "<Time>" + namespaces + "</Time>", 400, "badXmlFormat"},
           {"PUT", "/TARN/time",
            "<!DOCTYPE Time [<!ATTLIST Time" + Repeated(" a ID #IMPLIED", kSize) + ">]><Time/>",
            400, "badXmlFormat"},
           {"PUT", "/TARN/time", in256 + in256, 400, "badXmlFormat"},
           {"PUT", "/TARN/time", "<?xml version='1.0' encoding='UTF-7'?><Time/>", 200, "ok"},
           {"PUT", "/TARN/deice?format=json", "{\"Deice\": 1" + Repeated("/**/", kSize) + "}", 200,
            "ok"},
           {"PUT", "/TARN/deice?format=json", Repeated("[", 1000), 400, "badJsonFormat"},
           {"PUT", "/TARN/time", std::string(Device::kMostBody + 1, ' '), 413, "bodyTooLarge"}});
}

// How libxml2 takes a document, without the hooks that the dangerous ones need.
bool WellFormed(const std::string& text)
{
    xmlDoc* document = xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                     XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    const bool read = document != nullptr;
    xmlFreeDoc(document);
    return read;
}

TEST(DeviceProfiles, EveryEmbeddedProfileAnswersWithReadableDocuments)
{
    for (const std::string& name : DeviceModel::ProfileNames()) {
        std::string error;
        const auto model = DeviceModel::Load(name, error);
        ASSERT_NE(model, nullptr) << error;
        if (name == "hostile") {
            continue;
        }
        EXPECT_EQ(model->Name(), name);
        const Response basic = model->Handle({"POST", "/TARN/SDK/deviceAbility/1", ""});
        EXPECT_TRUE(basic.status == 200 && WellFormed(basic.body)) << name;
        const Response system = model->Handle({"GET", "/TARN/System/capabilities", ""});
        EXPECT_TRUE(system.status == 200 && WellFormed(system.body)) << name;
    }
}

// Cases that a reader must be able to take, so that a test over them tests more than refusals.
constexpr std::string_view kReadable =
    " outOfOrder wrongRoot rootWrongCase defaultNamespace prefixedRoot"
    " duplicateElements emptyElements unknownElements wrongKinds oversized"
    " declaredGbk byteOrderMark utf16 externalFile externalHttp attributeDefaults"
    " nested256 hugeNumbers negativeNumbers hexNumbers lettersInNumbers exponents"
    " longText comments processingInstructions cdata cutTexts mixedContent ";

TEST(HostileDocuments, AreAsBrokenAsTheyClaimAndNoMore)
{
    const std::string sample =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Root version=\"2.0\"><a min=\"1\">12</a>"
        "<list><item>x &amp; y</item><item/></list></Root>";
    const std::set<std::string_view> dangerous = {"entityBomb",          "flatEntityBomb",
                                                  "attributeEntityBomb", "manyAttributes",
                                                  "parameterEntities",   "wrongEncoding"};
    std::set<std::string> distinct;
    for (const Device::HostileCase& hostile : Device::HostileCases()) {
        const std::string text = Device::MakeHostileXml(hostile, "Root", sample);
        EXPECT_LT(text.size(), 25'000'000u) << hostile.name;
        EXPECT_TRUE(distinct.insert(text.substr(0, 100000)).second) << hostile.name;
        EXPECT_EQ(Device::FindHostileCase(hostile.name), &hostile);
        if (!dangerous.contains(hostile.name)) {
            const std::string name = " " + std::string(hostile.name) + " ";
            EXPECT_EQ(WellFormed(text), kReadable.find(name) != std::string_view::npos) << name;
        }
    }
    const auto make = [&](const char* name) {
        return Device::MakeHostileXml(*Device::FindHostileCase(name), "Root", sample);
    };
    EXPECT_THAT(make("outOfOrder"),
                HasSubstr("<list><item></item><item>x &amp; y</item></list><a"));
    EXPECT_THAT(make("hexNumbers"), HasSubstr("<a min=\"0x1F\">0x1F</a>"));
    EXPECT_THAT(make("cdata"), HasSubstr("<a min=\"1\"><![CDATA[12]]></a>"));
}

TEST(HostileDocuments, JsonFormsAreMadeForAnyRoot)
{
    for (const Device::HostileCase& hostile : Device::HostileCases()) {
        const std::string own = Device::MakeHostileJson(hostile, "Cap");
        const std::string given = Device::MakeHostileJson(hostile, "Cap", R"({"Cap": {"n": 5}})");
        EXPECT_LT(std::max(own.size(), given.size()), 25'000'000u) << hostile.name;
    }
    const auto& huge = *Device::FindHostileCase("hugeNumbers");
    EXPECT_THAT(Device::MakeHostileJson(huge, "Cap", R"({"Cap": {"n": 5}})"),
                HasSubstr("\"n\" : 99999999999999999999999999"));
    const auto& renamed = *Device::FindHostileCase("wrongRoot");
    EXPECT_THAT(Device::MakeHostileJson(renamed, "Cap", R"({"Cap": {"n": 5}})"),
                HasSubstr("\"OtherCap\""));
}

TEST(HostileModel, GoesThroughAllCasesOrStaysWithOne)
{
    std::string error;
    const auto all = DeviceModel::Load("hostile", error);
    ASSERT_NE(all, nullptr) << error;
    std::set<std::string> answers;
    for (size_t i = 0; i < Device::HostileCases().size(); ++i) {
        const Response response = all->Handle({"GET", "/TARN/System/capabilities", ""});
        EXPECT_EQ(response.status, 200);
        answers.insert(response.body);
    }
    EXPECT_EQ(answers.size(), Device::HostileCases().size());
    const auto bomb = DeviceModel::Load("hostile:entityBomb", error);
    ASSERT_NE(bomb, nullptr) << error;
    EXPECT_EQ(bomb->Handle({"GET", "/TARN/SDK/channels/1?mode=1", ""}).body, "1");
    Check(*bomb, {{"GET", "/TARN/System/capabilities", "", 200, "<!DOCTYPE DeviceCap ["},
                  {"POST", "/TARN/SDK/deviceAbility/1", "", 200, "<!DOCTYPE BasicCapability ["},
                  {"POST", "/TARN/SDK/deviceAbility/99", "<Odd/>", 200, "<!DOCTYPE Odd ["}});
    EXPECT_EQ(DeviceModel::Load("hostile:none", error), nullptr);
    EXPECT_THAT(error, HasSubstr("entityBomb"));
}

}  // namespace
