// What one answer may cost: documents beyond a limit are refused, and the log names the limit.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/Limits.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/JsonTARN/JsonConfig/AlarmHostStatus.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "CapabilitySet/XMLParamInterface/SwitchConfig.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using TestSupport::LogCapture;

std::string Times(std::size_t count, const std::string& piece)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += piece;
    }
    return text;
}

/// Different names, each between `before` and `after`.
std::string Names(std::size_t count, const std::string& before, const std::string& after)
{
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += before + "n" + std::to_string(i) + after;
    }
    return text;
}

/// Sets the memory for a document as long as it exists.
struct DocumentMemoryOf
{
    explicit DocumentMemoryOf(std::size_t bytes) { limits::SetDocumentMemory(bytes); }
    ~DocumentMemoryOf() { limits::SetDocumentMemory(limits::kDocumentMemory); }
    DocumentMemoryOf(const DocumentMemoryOf&) = delete;
    DocumentMemoryOf& operator=(const DocumentMemoryOf&) = delete;
};

TEST(LimitsTest, RefusesWhatLibxml2TakesQuadraticTimeFor)
{
    const std::string root = "<PTZAbility><a/></PTZAbility>";
    const auto subset = [&](const std::string& declarations) {
        return "<!DOCTYPE PTZAbility [" + declarations + "]>" + root;
    };
    const std::pair<std::string, const char*> cases[] = {
        {subset("<!ATTLIST r" + Names(20000, " ", " ID #IMPLIED") + ">"),
         "The internal subset has more than 4096 bytes"},
        {subset("<!ATTLIST r a (x" + Names(40000, "|", "") + ") 'x'>"),
         "The internal subset has more than 4096 bytes"},
        {subset("<!--" + std::string(5000, 'x') + "-->"),
         "The internal subset has more than 4096 bytes"},
        {"<PTZAbility><a" + Names(2000, " ", "=''") + Times(30000, " ") + "/></PTZAbility>",
         "An element has more than 1000 attributes"},
    };
    LogCapture log;
    for (const auto& [text, reason] : cases) {
        log.Clear();
        EXPECT_FALSE(PTZAbility(text).Capable()) << reason;
        EXPECT_THAT(log.Messages(), ElementsAre(HasSubstr(reason)));
    }
    log.Clear();
    const std::string plain = "<!ATTLIST a x CDATA 'd'>";
    const PTZAbility read(subset(plain + std::string(4000 - plain.size(), ' ')) +
                          std::string(9000, '\n'));
    EXPECT_TRUE(read.Capable()) << "a subset of a few lines, and a long text after it";
    const PTZAbility ids("<PTZAbility>" + Names(100000, "<a xml:id='", "'/>") + "</PTZAbility>");
    EXPECT_EQ(ids.root.children.size(), 100000U);
    EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST(LimitsTest, RefusesTreesBeyondTheMemoryForADocument)
{
    const std::string xml = "<PTZAbility>" + Times(20000, "<a/> ") + "</PTZAbility>";
    const std::string json = "{\"List\": [" + Times(40000, "{},") + "{}]}";
    LogCapture log;
    EXPECT_TRUE(PTZAbility(xml).Capable());
    EXPECT_EQ(AlarmHostZoneConfig(json).zones.size(), 40001U);
    EXPECT_THAT(log.Messages(), IsEmpty());
    const DocumentMemoryOf megabyte(1024 * 1024);
    EXPECT_FALSE(PTZAbility(xml).Capable());
    EXPECT_TRUE(AlarmHostZoneConfig(json).root.isNull());
    EXPECT_THAT(log.Messages(), ElementsAre(HasSubstr("more than 1048576 bytes of memory"),
                                            HasSubstr("more than 1048576 bytes of memory")));
}

TEST(LimitsTest, CutsListsAndLogsOneLine)
{
    LogCapture log;
    const std::size_t many = limits::kListEntries + 500;
    const AlarmHostZoneConfig zones("{\"List\": [" + Times(many, "{},") + "{}]}");
    EXPECT_EQ(zones.zones.size(), limits::kListEntries);
    PortRateList rates;
    rates.Parse("<PortRateList>" + Times(many, "<PortRate/>") + "</PortRateList>");
    EXPECT_EQ(rates.portRate.size(), limits::kListEntries);
    EXPECT_THAT(log.Messages(), ElementsAre(HasSubstr("more than 100000 entries"),
                                            HasSubstr("more than 100000 entries")));
}

TEST(LimitsTest, ReadsJsonWithAnyNumberOfComments)
{
    // Many comments behind one value would take hours if they were kept.
    const std::string comments = Times(200000, "/**/");
    const AlarmHostZoneConfig read("{\"List\": [{\"Zone\": {\"id\": 7" + comments + "}}]}");
    ASSERT_EQ(read.zones.size(), 1U);
    EXPECT_EQ(read.zones[0].id, 7);
}

TEST(LimitsTest, LogsOfUnknownOptionsAFewForEachDocument)
{
    LogCapture log;
    const std::string text = "<EventAbility><ExceptionAlarm><exceptionType opt='x" +
                             Names(5000, ",", "") + "'/></ExceptionAlarm></EventAbility>";
    for (int document = 1; document <= 2; ++document) {
        log.Clear();
        EventAbility events(text);
        EXPECT_EQ(log.Messages().size(), limits::kOptionLines + 1);
        EXPECT_THAT(log.Messages().back(), HasSubstr("more than 32 unknown options"));
    }
}

TEST(LimitsTest, WritesNothingThatControlsATerminalToTheLog)
{
    const std::pair<std::string, std::string> cases[] = {
        {"&#9;a", "\ta"},
        {"a&#10;b", "a\\x0Ab"},
        {"&#x9b;31m", "\\x9B31m"},
        {"&#x202e;a&#x2069;", "\\u202Ea\\u2069"},
        {"&#x7f;", "\\x7F"},
        {"\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80", "\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80"},
        {std::string(9000, 'y'), std::string(4000, 'y')},
    };
    LogCapture log;
    for (const auto& [option, logged] : cases) {
        log.Clear();
        EventAbility events("<EventAbility><ExceptionAlarm><exceptionType opt='" + option +
                            "'/></ExceptionAlarm></EventAbility>");
        ASSERT_EQ(log.Messages().size(), 1U);
        EXPECT_THAT(log.Messages()[0], HasSubstr("[" + logged));
        EXPECT_LE(log.Messages()[0].size(), limits::kLogLineBytes + 10);
    }
}

TEST(LimitsTest, SaysThatAnEncodingCannotBeConverted)
{
    LogCapture log;
    for (const char* encoding : {"HTML", "UTF-32"}) {
        log.Clear();
        EXPECT_FALSE(PTZAbility("<?xml version='1.0' encoding='" + std::string(encoding) +
                                "'?><PTZAbility><a/></PTZAbility>")
                         .Capable());
        EXPECT_THAT(log.Messages(), ElementsAre(HasSubstr("input conversion failed")));
    }
}

TEST(LimitsTest, LetsACallbackInstallAnother)
{
    using ParseXmlHelper::SDKInterfaceManager;
    SDKInterfaceManager& manager = SDKInterfaceManager::instance();
    TestSupport::ScriptedSdk::Fresh().steps = {{.error = 7}};
    const std::vector<int> captured(100, 1);  // freed with the callback that holds it
    int seen = 0;
    manager.setSDKErrorProcessCallBack([&manager, &seen, captured](int error) {
        manager.setSDKErrorProcessCallBack({});
        seen = error + captured[99];
    });
    std::string answer;
    std::string status = "0";
    manager.TransparentRequsetGET(1, "GET /\r\n", answer, status, 0, false);
    EXPECT_EQ(seen, 8);
}

}  // namespace
