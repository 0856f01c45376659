// Presets, patterns and patrols of a channel, and its auto-tracking switch over a scripted SDK.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"

#include <csignal>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/time.h>
#include <unistd.h>

#include "Keel/Error.h"
#include "support/AllocationFaults.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;
using TestSupport::AllocationFault;
using TestSupport::LogCapture;
using TestSupport::ScriptedSdk;
using TestSupport::SdkCall;
using TestSupport::SdkStep;

TEST(PTZPresetCfgTest, ReadsPresetsOfBothKindsInTheDocumentsOrder)
{
    const std::string document =
        "<PTZPresetList version='2.0' xmlns='urn:p'> <PTZPreset><enabled>true</enabled><id>1</id>"
        "<presetName>gate &amp; yard</presetName><AbsoluteHigh><elevation>-12</elevation>"
        "<azimuth>34</azimuth><absoluteZoom>56</absoluteZoom></AbsoluteHigh></PTZPreset> <other/>"
        "<PTZPreset><id>2</id><enabled>true</enabled><AbsoluteHigh><azimuth>7</azimuth>"
        "<elevation>8</elevation></AbsoluteHigh></PTZPreset>"
        "<PTZPreset><!-- x --></PTZPreset></PTZPresetList>";
    CPTZPresetListCfg plain(document);
    ASSERT_EQ(plain.presets.size(), 3U);
    EXPECT_TRUE(plain.presets[0].capable && plain.presets[0].enabled);
    EXPECT_EQ(plain.presets[0].presetName, "gate & yard");
    EXPECT_TRUE(plain.presets[1].enabled);
    EXPECT_EQ(plain.presets[1].id, "") << "the search for the flag passed over it";
    EXPECT_FALSE(plain.presets[2].capable);

    CVelTarnPTZPresetList placed(document);
    ASSERT_EQ(placed.presets.size(), 3U);
    const CVelTarnPTZPresetInfo& first = placed.presets[0];
    EXPECT_TRUE(first.enabled);
    EXPECT_EQ(std::tuple(first.id, first.elevation, first.azimuth, first.absoluteZoom),
              std::tuple("1", -12, 34, 56));
    EXPECT_EQ(first.presetName, "") << "the client's own";
    const CVelTarnPTZPresetInfo& second = placed.presets[1];
    EXPECT_EQ(std::tuple(second.elevation, second.azimuth, second.absoluteZoom),
              std::tuple(8, 0, 0));

    placed.Parse(document);
    plain.Parse(document);
    EXPECT_EQ(placed.presets.size() + plain.presets.size(), 12U) << "lists are appended to";

    plain.Parse("<PTZPresetList><PTZPreset/><PTZPreset><id>3</id></PTZPreset></PTZPresetList>");
    ASSERT_EQ(plain.presets.size(), 8U);
    EXPECT_FALSE(plain.presets[6].capable);
    EXPECT_EQ(plain.presets[7].id, "3");
}

TEST(PTZPresetCfgTest, ReadsPatternsAndPatrols)
{
    const CVelTarnPTZPatternList patterns(
        "<PTZPatternList><PTZPattern><enabled>1</enabled><id>3x</id><space>50</space></PTZPattern>"
        "<PTZPattern><space>4</space></PTZPattern></PTZPatternList>");
    ASSERT_EQ(patterns.patterns.size(), 2U);
    EXPECT_TRUE(patterns.patterns[0].enabled);
    EXPECT_EQ(patterns.patterns[0].id, 3);
    EXPECT_EQ(patterns.patterns[0].space, 50);
    EXPECT_EQ(patterns.patterns[1].space, 4);

    const std::string patrol =
        "<PTZPatrol><enabled>true</enabled><id>p</id><PatrolSequenceList><PatrolSequence/> "
        "<PatrolSequence><presetID>5</presetID><seqSpeed>fast</seqSpeed><delay>900</delay>"
        "</PatrolSequence></PatrolSequenceList></PTZPatrol>";
    const CVelTarnPTZPatrolList patrols("<PTZPatrolList>" + patrol + patrol + "</PTZPatrolList>");
    ASSERT_EQ(patrols.patrols.size(), 2U);
    for (const CVelTarnPTZPatrol& each : {patrols.patrols[1], CVelTarnPTZPatrol(patrol)}) {
        EXPECT_TRUE(each.enabled);
        EXPECT_EQ(each.id, "p");
        ASSERT_EQ(each.steps.size(), 2U);
        EXPECT_EQ(std::tuple(each.steps[1].presetID, each.steps[1].seqSpeed, each.steps[1].delay),
                  std::tuple("5", "fast", 900));
        EXPECT_EQ(each.steps[0].presetID, "");
    }
    const TestSupport::XmlTree tree("<PTZPattern><id>6</id></PTZPattern>");
    EXPECT_EQ(CVelTarnPTZPattern(tree.First()).id, 6);
    EXPECT_EQ(CVelTarnPTZPattern(nullptr).id, 0);
}

template <class List>
void TellsOnlyOfMalformedTexts(const char* root, const std::string& tag = "[pmv-v2.0.0]")
{
    SCOPED_TRACE(root);
    const LogCapture log;
    List list;
    list.Parse("");
    list.Parse("<" + std::string(root) + "s/>");
    EXPECT_THAT(log.Messages(), IsEmpty());
    list.Parse("<" + std::string(root) + ">\n<a>");
    ASSERT_EQ(log.Messages().size(), 1U);
    EXPECT_THAT(log.Messages()[0], StartsWith(tag + "Cann't parse the XML, The error is at "
                                                    "line[2], the error message is ["));
}

TEST(PTZPresetCfgTest, AWrongRootIsSilentAndAMalformedTextIsOneLine)
{
    TellsOnlyOfMalformedTexts<CPTZPresetListCfg>("PTZPresetList", "");
    TellsOnlyOfMalformedTexts<CVelTarnPTZPresetList>("PTZPresetList");
    TellsOnlyOfMalformedTexts<CVelTarnPTZPatternList>("PTZPatternList");
    TellsOnlyOfMalformedTexts<CVelTarnPTZPatrolList>("PTZPatrolList");
    TellsOnlyOfMalformedTexts<CVelTarnPTZPatrol>("PTZPatrol");
}

TEST(PTZPresetCfgTest, TakesEveryTextButThePlainListForUtf8WhateverItDeclares)
{
    const std::string document =
        "<?xml version='1.0' encoding='ISO-8859-1'?><PTZPresetList><PTZPreset><id>\xC3\xA9</id>"
        "</PTZPreset></PTZPresetList>";
    const CVelTarnPTZPresetList placed(document);
    ASSERT_EQ(placed.presets.size(), 1U);
    EXPECT_EQ(placed.presets[0].id, "\xC3\xA9");
    const CPTZPresetListCfg plain(document);
    ASSERT_EQ(plain.presets.size(), 1U);
    EXPECT_EQ(plain.presets[0].id, "\xC3\x83\xC2\xA9");
}

struct EmptyItemRow
{
    const char* document;
    bool hasEmptyItem;
    void (*read)(const std::string&);
};

template <class List>
void Read(const std::string& text)
{
    List().Parse(text);
}

const EmptyItemRow kEmptyItems[] = {
    {"<PTZPresetList><PTZPreset/></PTZPresetList>", true, Read<CVelTarnPTZPresetList>},
    {"<PTZPresetList><PTZPreset><id/></PTZPreset><PTZPreset></PTZPreset></PTZPresetList>", true,
     Read<CVelTarnPTZPresetList>},
    {"<PTZPatternList><PTZPattern a='1'/></PTZPatternList>", true, Read<CVelTarnPTZPatternList>},
    {"<PTZPatrolList><x/><PTZPatrol/></PTZPatrolList>", true, Read<CVelTarnPTZPatrolList>},
    {"<PTZPresetList><PTZPattern/></PTZPresetList>", false, Read<CVelTarnPTZPresetList>},
    {"<PTZPresetList><x><PTZPreset/></x></PTZPresetList>", false, Read<CVelTarnPTZPresetList>},
    {"<PTZPatternList><PTZPattern> </PTZPattern></PTZPatternList>", false,
     Read<CVelTarnPTZPatternList>},
    {"<PTZPatrolList><PTZPatrol><a/></PTZPatrol></PTZPatrolList>", false,
     Read<CVelTarnPTZPatrolList>},
    {"<PTZPatrol><PatrolSequenceList><PatrolSequence/></PatrolSequenceList></PTZPatrol>", false,
     Read<CVelTarnPTZPatrol>},
    {"<PTZPresetList><PTZPreset/>", false, Read<CVelTarnPTZPresetList>},
    {"", false, Read<CVelTarnPTZPresetList>}};

/// Reads in this process, a child, which ends after a third of a second if not before.
void ReadWithin(const EmptyItemRow& row)
{
    const itimerval limit{{0, 0}, {0, 300'000}};
    setitimer(ITIMER_REAL, &limit, nullptr);
    row.read(row.document);
    _exit(0);
}

TEST(PTZPresetCfgDeathTest, AnItemWithoutChildrenIsSearchedForEverAndToldBefore)
{
    GTEST_FLAG_SET(death_test_style, "fast");
    for (const EmptyItemRow& row : kEmptyItems) {
        SCOPED_TRACE(row.document);
        EXPECT_EQ(HasEmptyItem(row.document), row.hasEmptyItem);
        if (row.hasEmptyItem) {
            EXPECT_EXIT(
                ReadWithin(row),
                [](int status) { return WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM; }, "");
        } else {
            row.read(row.document);
        }
    }
}

TEST(PTZPresetCfgTest, ATextThatMemoryDoesNotSufficeToJudgeCountsAsHavingAnEmptyItem)
{
    const std::string good = "<PTZPresetList><PTZPreset><id>1</id></PTZPreset></PTZPresetList>";
    bool struck = true;
    for (std::size_t ordinal = 1; struck; ++ordinal) {
        const AllocationFault fault(AllocationFault::Xml, ordinal);
        const bool judged = HasEmptyItem(good);
        struck = AllocationFault::Struck();
        EXPECT_EQ(judged, struck) << ordinal;
    }
}

/// One of the two operations on the switch of SDK channel 2, protocol channel 34, of user 6.
struct Tracking
{
    const char* name;
    const char* line;
    const char* body;
    const char* channelTag;
    bool (*run)(CVelTarnPTZAutoTracking& out);
};

const Tracking kTracking[] = {
    {"SetAutoTrackingState", "PUT /TARN/PTZCtrl/channels/34/moveAutoTracking?format=json\r\n",
     "{\n\t\"MoveAutoTracking\" : \n\t{\n\t\t\"enabled\" : true\n\t}\n}\n", "[pmv-v2.0.0]",
     [](CVelTarnPTZAutoTracking&) {
         return CVelTarnPTZAutoTracking::SetAutoTrackingState(6, 2, true);
     }},
    {"GetAutoTrackingState", "GET /TARN/PTZCtrl/channels/34/moveAutoTracking?format=json\r\n", "",
     "[pmv-v2.0.1]", [](CVelTarnPTZAutoTracking& out) {
         return CVelTarnPTZAutoTracking::GetAutoTrackingState(6, 2, out);
     }}};

constexpr const char* kOn = R"({"MoveAutoTracking":{"enabled":true}})";

/// Runs a check on both operations, each with an SDK that answers `steps`.
template <class Check>
void ForBoth(const std::vector<SdkStep>& steps, Check check)
{
    for (const Tracking& operation : kTracking) {
        SCOPED_TRACE(operation.name);
        const LogCapture log;
        ScriptedSdk& sdk = ScriptedSdk::Fresh();
        sdk.steps = steps;
        Keel::Error::SetLastError({1, 2, {}});
        check(operation, sdk, log);
        EXPECT_EQ(Keel::Error::GetLastError().code, 2) << "the last error is never set";
    }
}

TEST(PTZPresetCfgTest, TrackingSendsItsLineAndBody)
{
    ForBoth({{.answer = kOn}}, [](const Tracking& operation, ScriptedSdk& sdk, const auto& log) {
        CVelTarnPTZAutoTracking out;
        EXPECT_TRUE(operation.run(out));
        EXPECT_EQ(out.enabled, operation.name[0] == 'G');
        ASSERT_EQ(sdk.calls.size(), 2U);
        EXPECT_EQ(sdk.calls[0].kind, SdkCall::Channel);
        EXPECT_EQ(sdk.calls[1].line, operation.line);
        EXPECT_EQ(sdk.calls[1].input, operation.body);
        EXPECT_TRUE(sdk.calls[1].isWellFilled && sdk.calls[1].isZeroed);
        const auto lines = log.Lines();
        ASSERT_EQ(lines.size(), 1U);
        EXPECT_EQ(lines[0].level, "INFO");
        EXPECT_EQ(lines[0].message, std::string("[pmv-v2.0.1]") + operation.name + " start.");
    });
}

TEST(PTZPresetCfgTest, TrackingTriesSizesBelowTheLimitOnly)
{
    ForBoth({{.error = 43}}, [](const Tracking& operation, ScriptedSdk& sdk, const auto& log) {
        CVelTarnPTZAutoTracking out{kOn};
        EXPECT_FALSE(operation.run(out));
        EXPECT_TRUE(out.enabled);
        ASSERT_EQ(sdk.calls.size(), 1U + 999U);
        EXPECT_EQ(sdk.calls[1].size, 16384U);
        EXPECT_EQ(sdk.calls.back().size, 16384000U - 16384U);
        EXPECT_THAT(log.Messages().back(),
                    std::string("[pmv-v2.0.1]") + operation.name + " failed, buf is small.");
        EXPECT_THAT(log.Messages("Vsk"), IsEmpty());
    });
}

TEST(PTZPresetCfgTest, TrackingTellsOtherErrorsWithOneAttempt)
{
    for (const unsigned error : {1001U, 1000U, 7U}) {
        ForBoth(
            {{.error = error}}, [=](const Tracking& operation, ScriptedSdk& sdk, const auto& log) {
                CVelTarnPTZAutoTracking out;
                EXPECT_FALSE(operation.run(out));
                EXPECT_EQ(sdk.calls.size(), 2U);
                EXPECT_EQ(log.Messages().back(), "[pmv-v2.0.1]NET_ORB_STDXMLConfig failed, [50]-[" +
                                                     std::to_string(error) + "].");
            });
    }
    ForBoth({}, [](const Tracking& operation, ScriptedSdk& sdk, const auto& log) {
        sdk.channelError = 4;
        CVelTarnPTZAutoTracking out;
        EXPECT_FALSE(operation.run(out));
        EXPECT_EQ(sdk.calls.size(), 1U) << "nothing is sent";
        EXPECT_EQ(log.Messages().back(),
                  std::string(operation.channelTag) + "ChannelToTARN failed, [50]-[4].");
    });
}

TEST(PTZPresetCfgTest, TrackingAnswerWithoutTheSwitchIsAFailure)
{
    const std::tuple<const char*, bool, bool> rows[] = {
        {kOn, true, true},
        {R"({"MoveAutoTracking":{"enabled":false}})", true, false},
        {R"({"MoveAutoTracking":{}})", true, false},
        {R"({"MoveAutoTracking":{"enabled":"true"}})", false, true},
        {R"({"MoveAutoTracking":[true]})", false, true},
        {R"({"moveAutoTracking":{"enabled":false}})", false, true},
        {R"([])", false, true},
        {"not JSON", false, true},
        {"", false, true}};
    for (const auto& [answer, result, enabled] : rows) {
        ScriptedSdk::Fresh().steps = {{.answer = answer}};
        CVelTarnPTZAutoTracking out{kOn};
        EXPECT_EQ(CVelTarnPTZAutoTracking::GetAutoTrackingState(6, 2, out), result) << answer;
        EXPECT_EQ(out.enabled, enabled) << answer;
    }
}

}  // namespace
