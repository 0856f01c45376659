// What channels can detect, and the cache of their tracking ability.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventAbility.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/private/ParseToSDK.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::LogCapture;
using TestSupport::ScriptedSdk;

using Handle = AlarmHandleType;

EventAbility Events(const std::string& children)
{
    return EventAbility("<EventAbility version='2.0' xmlns='urn:e'>" + children +
                        "</EventAbility>");
}

/// Children of a range, the default being one more than its upper bound.
std::string Range(const std::string& name, unsigned min, unsigned max)
{
    return "<" + name + "><Min>" + std::to_string(min) + "</Min><Max>" + std::to_string(max) +
           "</Max><Default>" + std::to_string(max + 1) + "</Default></" + name + ">";
}

std::vector<unsigned> Numbers(const MinMaxElement& range)
{
    return {range.min, range.max, range.def};
}

TEST(EventAbilityTest, ReadsEachKindOfElement)
{
    const EventAbility all = Events(
        "<channelNO>3</channelNO><ExceptionAlarm><exceptionType opt='raid,diskFull'/>"
        "</ExceptionAlarm><AlarmIn><alarmTime>5</alarmTime><alarmHandleType opt='audio,record'/>"
        "</AlarmIn><FaceDetection><detectFaceEnable opt='true,false'/>" +
        Range("detectFaceSensitive", 1, 2) +
        "<triggerRecord>true</triggerRecord></FaceDetection>"
        "<Track><stopTrackThreshold min='8' max='9'/><ManualTrace><enabled>true</enabled>"
        "<trackType opt='urbanRoadTrack'/></ManualTrace></Track><VoiceDetection><audioSteepDrop>"
        "<enable opt='true,false' attri='x'/></audioSteepDrop></VoiceDetection>"
        "<TraversingVirtualPlane><alertlineNum>19</alertlineNum><AlertLine><id>-1</id>"
        "<crossDirection opt='rightToLeft,bothway'/></AlertLine><between/><AlertLine><id>2</id>"
        "</AlertLine><alarmTime>26</alarmTime></TraversingVirtualPlane><FieldDetection>"
        "<Intrusiongion><id>31</id>" +
        Range("rate", 41, 42) + "</Intrusiongion></FieldDetection><SceneChangeDetection>" +
        Range("sensitiveLevel", 48, 49) +
        "</SceneChangeDetection><VCADetection><preset>true</preset><cruise>True</cruise>"
        "<ptzTrack>true</ptzTrack></VCADetection>");
    EXPECT_TRUE(all.Capable());
    EXPECT_EQ(all.channelNO, 3U);
    EXPECT_THAT(all.exceptionAlarm.exceptionType, ElementsAre(8, 0));
    EXPECT_EQ(all.alarmIn.alarmTime, 5U);
    EXPECT_THAT(all.alarmIn.alarmHandleType, ElementsAre(Handle::Audio));
    EXPECT_TRUE(all.faceDetection.detectFaceEnable && all.faceDetection.triggerRecord);
    EXPECT_THAT(Numbers(all.faceDetection.detectFaceSensitive), ElementsAre(1, 2, 3));
    EXPECT_THAT(Numbers(all.track.stopTrackThreshold), ElementsAre(8, 9, 0));
    EXPECT_TRUE(all.track.manualTrace.enabled);
    EXPECT_THAT(all.track.manualTrace.trackType, ElementsAre(2));
    EXPECT_THAT(all.voiceDetection.audioSteepDrop.enable.opt, ElementsAre("true", "false"));
    EXPECT_THAT(all.voiceDetection.audioSteepDrop.enable.attri, ElementsAre("x"));
    const TraversingVirtualPlane& plane = all.traversingVirtualPlane;
    ASSERT_EQ(plane.alertLine.size(), 2U);
    EXPECT_EQ(plane.alertLine[0]->id, -1);
    EXPECT_THAT(plane.alertLine[0]->crossDirection, ElementsAre(2, 0));
    EXPECT_EQ(plane.alertLine[1]->id, 2);
    EXPECT_EQ(plane.alarmTime, 26U) << "stands after the list";
    ASSERT_EQ(all.fieldDetection.intrusiongion.size(), 1U);
    EXPECT_THAT(Numbers(all.fieldDetection.intrusiongion[0]->rate), ElementsAre(41, 42, 43));
    EXPECT_THAT(Numbers(all.sceneChangeDetection.sensitiveLevel), ElementsAre(48, 49, 50));
    const VCADetection& vca = all.vcaDetection;
    EXPECT_TRUE(vca.preset && !vca.cruise && vca.ptzTrack);

    EventAbility again = all;
    again.Parse(
        std::string("<EventAbility><TraversingVirtualPlane><AlertLine><id>3</id></AlertLine>"
                    "</TraversingVirtualPlane></EventAbility>"));
    ASSERT_EQ(again.traversingVirtualPlane.alertLine.size(), 3U) << "lists are appended to";
    EXPECT_EQ(again.traversingVirtualPlane.alarmTime, 26U) << "what is not there stays";
}

TEST(EventAbilityTest, TurnsOptionsIntoCodesAndLogsUnknownOnes)
{
    const LogCapture log;
    const EventAbility events = Events(
        "<ExceptionAlarm><exceptionType opt='resolutionMismatch,RAID,spareException,"
        "POEPowerException,POEPoweException'/></ExceptionAlarm>"
        "<AlarmOut><pulseDuration opt='5,05,600,manual'/></AlarmOut><Track><ManualTrace><trackType "
        "opt=' normalTrack,urbanRoadTrack'/></ManualTrace></Track><VoiceDetection><Abnormal>"
        "<audioMode opt='All,all'/></Abnormal></VoiceDetection><TraversingVirtualPlane><AlertLine>"
        "<crossDirection opt='%n,rightToLeft'/></AlertLine></TraversingVirtualPlane>");
    EXPECT_THAT(log.Messages(), ElementsAre("[RAID] is not exist in 'ExceptionType'.",
                                            "[POEPowerException] is not exist in 'ExceptionType'.",
                                            "[05] is not exist in 'PulseDuration'.",
                                            "[ normalTrack] is not exist in 'trackType'.",
                                            "[All] is not exist in 'audioMode'.",
                                            "[%n] is not exist in 'crossDirection'."));
    EXPECT_THAT(events.exceptionAlarm.exceptionType, ElementsAre(9, 11, 15));
    EXPECT_THAT(events.alarmOut.pulseDuration, ElementsAre(0, 6, 7));
    EXPECT_THAT(events.track.manualTrace.trackType, ElementsAre(2));
    EXPECT_THAT(events.voiceDetection.abnormal.audioMode, ElementsAre(2));
    EXPECT_THAT(events.traversingVirtualPlane.alertLine[0]->crossDirection, ElementsAre(2));
}

TEST(EventAbilityTest, RaisesItsFlagForWhatWasReadOnly)
{
    const std::pair<const char*, bool> rows[] = {
        {"", false},
        {"<channelNO>-1</channelNO>", false},
        {"<channelNO>4294967295</channelNO>", false},
        {"<channelNO>99999999999</channelNO>", false},
        {"<channelNO>4294967294</channelNO>", true},
        {"<channelNO/>", true},
        {"<AlarmIn/>", false},
        {"<AlarmIn>5</AlarmIn>", false},
        {"<AlarmIn><alarmtime>5</alarmtime></AlarmIn>", false},
        {"<AlarmIn><alarmTime/></AlarmIn>", true},
        {"<AlarmIn><alarmHandleType opt=''/></AlarmIn>", true},
        {"<FaceDetection><detectFaceEnable/></FaceDetection>", false},
        {"<FaceDetection><detectFaceEnable opt=''/></FaceDetection>", true},
        {"<FaceDetection><triggerRecord>no</triggerRecord></FaceDetection>", true},
        {"<FaceDetection><detectFaceSensitive><Min>1</Min></detectFaceSensitive></FaceDetection>",
         true},
        {"<Track><ManualTrace/></Track>", false},
        {"<Track><ManualTrace><enabled/></ManualTrace></Track>", true},
        {"<VoiceDetection><audioSteepDrop><enable/></audioSteepDrop></VoiceDetection>", true},
        {"<TraversingVirtualPlane><AlertLine/></TraversingVirtualPlane>", true},
        {"<channelNO>-1</channelNO><VCADetection><preset/></VCADetection>", true},
        // Out of order: the last one is read and the one after it is not.
        {"<VCADetection><unknown/></VCADetection><AlarmIn><alarmTime>5</alarmTime></AlarmIn>",
         true}};
    for (const auto& [children, capable] : rows) {
        EXPECT_EQ(Events(children).Capable(), capable) << children;
    }
    const EventAbility disordered = Events(
        "<AlarmOut><alarmTime>6</alarmTime></AlarmOut><AlarmIn><alarmTime>5</alarmTime></AlarmIn>"
        "<AlarmOut><alarmTime>7</alarmTime></AlarmOut>");
    EXPECT_EQ(disordered.alarmIn.alarmTime, 5U);
    EXPECT_EQ(disordered.alarmOut.alarmTime, 7U) << "the search for AlarmIn passed over the first";
}

TEST(EventAbilityTest, TakesFlagsFromTheFirstOptionAndStoresStopTrackWithTheOther)
{
    struct Row
    {
        const char* children;
        bool before;
        bool enabled;
    };
    const Row rows[] = {
        {"<trackEnable opt='true'/><stopTrackWhenFindFace opt='false'/>", false, false},
        {"<trackEnable opt='false'/><stopTrackWhenFindFace opt='true'/>", false, true},
        {"<trackEnable opt='true'/>", false, true},
        {"<trackEnable opt='false,true'/>", true, false},
        {"<trackEnable opt='true,false'/>", false, true},
        {"<trackEnable opt=',true'/>", false, true},
        {"<trackEnable opt='1'/>", true, false},
        {"<trackEnable opt=''/>", true, false},
        {"<trackEnable>true</trackEnable>", true, false},
        {"<ManualTrace/>", true, true}};
    for (const Row& row : rows) {
        EventAbility events;
        events.track.trackEnable = row.before;
        events.Parse(std::string("<EventAbility><Track>") + row.children +
                     "</Track></EventAbility>");
        EXPECT_EQ(events.track.trackEnable, row.enabled) << row.children;
        EXPECT_FALSE(events.track.stopTrackWhenFindFace);
    }
}

TEST(EventAbilityTest, NeverAsksTheDeviceForFtpUpload)
{
    const ScriptedSdk& sdk = ScriptedSdk::Fresh();
    SetAlarmQueryHandle(4);
    EXPECT_THAT(
        Events("<AlarmIn><alarmHandleType opt='monitor'/></AlarmIn>").alarmIn.alarmHandleType,
        ElementsAre(Handle::Monitor));
    SetAlarmQueryHandle(-1);
    EXPECT_THAT(sdk.calls, IsEmpty());
}

TEST(EventAbilityTest, RemembersTheFirstTrackOfEachKey)
{
    Track first;
    first.capable = first.trackEnable = first.manualTrace.enabled = true;
    first.stopTrackThreshold.max = 9;
    first.manualTrace.trackType = {2, 1};
    EXPECT_TRUE(EventAbility::SaveTrackAbility(first, "a", "b", 1));
    EXPECT_TRUE(EventAbility::SaveTrackAbility(Track(), "a", "b", 1));
    EXPECT_TRUE(EventAbility::SaveTrackAbility(Track(), "a", "b", 2));
    Track out;
    for (const auto& [one, other, channel] :
         {std::tuple("a", "b", 3U), {"ab", "", 1U}, {"", "ab", 1U}, {"b", "a", 1U}}) {
        EXPECT_FALSE(EventAbility::GetTrackAbility(out, one, other, channel)) << one << channel;
    }
    EXPECT_TRUE(EventAbility::GetTrackAbility(out, "a", "b", 2));
    EXPECT_FALSE(out.trackEnable);
    EXPECT_TRUE(EventAbility::GetTrackAbility(out, "a", "b", 1));
    EXPECT_TRUE(out.capable && out.trackEnable && out.manualTrace.enabled);
    EXPECT_EQ(out.stopTrackThreshold.max, 9U);
    EXPECT_THAT(out.manualTrace.trackType, ElementsAre(2, 1));
}

}  // namespace
