// What channels can detect, which reactions that may start, and the memory of tracking.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventAbility.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "support/AllocationFaults.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::AllocationFault;
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

std::string FullDocument()
{
    return "<channelNO>3</channelNO>"
           "<ExceptionAlarm><exceptionType opt='raid,diskFull'/><alarmHandleType opt='monitor'/>"
           "</ExceptionAlarm>"
           "<AlarmIn><alarmTime>5</alarmTime><alarmHandleType opt='audio,record'/></AlarmIn>"
           "<AlarmOut><alarmTime>6</alarmTime><pulseDuration opt='5,manual'/></AlarmOut>"
           "<FaceDetection><detectFaceEnable opt='true,false'/>" +
           Range("detectFaceSensitive", 1, 2) +
           "<alarmTime>7</alarmTime><alarmHandleType opt='center'/>"
           "<triggerRecord>true</triggerRecord></FaceDetection>"
           "<Track><trackEnable opt='true'/><stopTrackThreshold min='8' max='9'/>"
           "<ManualTrace><enabled>true</enabled><trackType opt='urbanRoadTrack'/></ManualTrace>"
           "</Track>"
           "<VoiceDetection><enable opt='true'/><Abnormal>" +
           Range("sensitivityLevel", 10, 11) + "<audioMode opt='all'/><enable opt='true'/>" +
           Range("threshold", 13, 14) +
           "</Abnormal><alarmTime>16</alarmTime><alarmHandleType opt='alarmout'/><audioSteepDrop>"
           "<enable opt='true,false' attri='x'/><sensitivityLevel min='17' max='18'/>"
           "</audioSteepDrop></VoiceDetection>"
           "<TraversingVirtualPlane><enable opt='true'/><enableDualVca opt='a'/>"
           "<alertlineNum>19</alertlineNum>" +
           Range("alertlineID", 20, 21) +
           "<AlertLine><id>-1</id><crossDirection opt='rightToLeft,bothway'/>" +
           Range("sensitivityLevel", 23, 24) +
           "</AlertLine><between/><AlertLine><id>2</id></AlertLine><alarmTime>26</alarmTime>"
           "<alarmHandleType opt='picture'/><recogRuleType opt='b'/></TraversingVirtualPlane>"
           "<FieldDetection><enable opt='true'/><enableDualVca opt='c'/>"
           "<intrusiongionNum>27</intrusiongionNum>" +
           Range("intrusiongionID", 28, 29) + "<Intrusiongion><id>31</id>" +
           Range("regionNum", 32, 33) + Range("duration", 35, 36) +
           Range("sensitivityLevel", 38, 39) + Range("rate", 41, 42) +
           "</Intrusiongion><alarmTime>44</alarmTime><alarmHandleType opt='wirelesslight'/>"
           "</FieldDetection>"
           "<DefousDetection><enable opt='true'/><alarmHandleType opt='uploadftp'/>" +
           Range("sensitivityLevel", 45, 46) +
           "</DefousDetection>"
           "<SceneChangeDetection><enable opt='true'/>" +
           Range("sensitiveLevel", 48, 49) +
           "<alarmTime>51</alarmTime><alarmHandleType opt='monitor,audio'/>"
           "<sceneChangeDetectionRecord>true</sceneChangeDetectionRecord></SceneChangeDetection>"
           "<VCADetection><enable opt='true'/><alarmTime>52</alarmTime>"
           "<alarmHandleType opt='center,monitor'/><preset>true</preset><cruise>True</cruise>"
           "<ptzTrack>true</ptzTrack></VCADetection>";
}

TEST(EventAbilityTest, ReadsTheElementsOfPlainEventsIntoTheirOwnMembers)
{
    const EventAbility all = Events(FullDocument());
    EXPECT_TRUE(all.Capable());
    EXPECT_EQ(all.channelNO, 3U);
    EXPECT_THAT(all.exceptionAlarm.exceptionType, ElementsAre(8, 0));
    EXPECT_THAT(all.exceptionAlarm.alarmHandleType, ElementsAre(Handle::Monitor));
    EXPECT_EQ(all.alarmIn.alarmTime, 5U);
    EXPECT_THAT(all.alarmIn.alarmHandleType, ElementsAre(Handle::Audio));
    EXPECT_EQ(all.alarmOut.alarmTime, 6U);
    EXPECT_THAT(all.alarmOut.pulseDuration, ElementsAre(0, 7));
    EXPECT_TRUE(all.faceDetection.detectFaceEnable && all.faceDetection.triggerRecord);
    EXPECT_THAT(Numbers(all.faceDetection.detectFaceSensitive), ElementsAre(1, 2, 3));
    EXPECT_EQ(all.faceDetection.alarmTime, 7U);
    EXPECT_THAT(all.faceDetection.alarmHandleType, ElementsAre(Handle::Center));
    EXPECT_TRUE(all.track.trackEnable && all.track.manualTrace.enabled);
    EXPECT_THAT(Numbers(all.track.stopTrackThreshold), ElementsAre(8, 9, 0));
    EXPECT_THAT(all.track.manualTrace.trackType, ElementsAre(2));
    const VoiceDetection& voice = all.voiceDetection;
    EXPECT_TRUE(voice.enable && voice.abnormal.enable);
    EXPECT_THAT(Numbers(voice.abnormal.sensitivityLevel), ElementsAre(10, 11, 12));
    EXPECT_THAT(voice.abnormal.audioMode, ElementsAre(2));
    EXPECT_THAT(Numbers(voice.abnormal.threshold), ElementsAre(13, 14, 15));
    EXPECT_EQ(voice.alarmTime, 16U);
    EXPECT_THAT(voice.alarmHandleType, ElementsAre(Handle::AlarmOut));
    EXPECT_THAT(voice.audioSteepDrop.enable.opt, ElementsAre("true", "false"));
    EXPECT_THAT(voice.audioSteepDrop.enable.attri, ElementsAre("x"));
    EXPECT_THAT(Numbers(voice.audioSteepDrop.sensitivityLevel), ElementsAre(17, 18, 0));
    EXPECT_TRUE(all.defousDetection.enable && all.sceneChangeDetection.enable);
    EXPECT_THAT(all.defousDetection.alarmHandleType, ElementsAre(Handle::UploadFtp));
    EXPECT_THAT(Numbers(all.defousDetection.sensitivityLevel), ElementsAre(45, 46, 47));
    EXPECT_THAT(Numbers(all.sceneChangeDetection.sensitiveLevel), ElementsAre(48, 49, 50));
    EXPECT_EQ(all.sceneChangeDetection.alarmTime, 51U);
    EXPECT_THAT(all.sceneChangeDetection.alarmHandleType,
                ElementsAre(Handle::Monitor, Handle::Audio));
    EXPECT_TRUE(all.sceneChangeDetection.sceneChangeDetectionRecord);
    const VCADetection& vca = all.vcaDetection;
    EXPECT_TRUE(vca.enable && vca.preset && !vca.cruise && vca.ptzTrack);
    EXPECT_EQ(vca.alarmTime, 52U);
    EXPECT_THAT(vca.alarmHandleType, ElementsAre(Handle::Center, Handle::Monitor));
}

TEST(EventAbilityTest, ReadsListsAmongTheOtherElementsOfLinesAndRegions)
{
    const EventAbility all = Events(FullDocument());
    const TraversingVirtualPlane& plane = all.traversingVirtualPlane;
    EXPECT_TRUE(plane.enable);
    EXPECT_THAT(plane.enableDualVca.opt, ElementsAre("a"));
    EXPECT_EQ(plane.alertlineNum, 19U);
    EXPECT_THAT(Numbers(plane.alertlineID), ElementsAre(20, 21, 22));
    ASSERT_EQ(plane.alertLine.size(), 2U);
    EXPECT_EQ(plane.alertLine[0]->id, -1);
    EXPECT_THAT(plane.alertLine[0]->crossDirection, ElementsAre(2, 0));
    EXPECT_THAT(Numbers(plane.alertLine[0]->sensitivityLevel), ElementsAre(23, 24, 25));
    EXPECT_EQ(plane.alertLine[1]->id, 2);
    EXPECT_EQ(plane.alarmTime, 26U);
    EXPECT_THAT(plane.alarmHandleType, ElementsAre(Handle::Picture));
    EXPECT_THAT(plane.recogRuleType.opt, ElementsAre("b"));
    const FieldDetection& field = all.fieldDetection;
    EXPECT_TRUE(field.enable);
    EXPECT_THAT(field.enableDualVca.opt, ElementsAre("c"));
    EXPECT_EQ(field.intrusiongionNum, 27U);
    EXPECT_THAT(Numbers(field.intrusiongionID), ElementsAre(28, 29, 30));
    ASSERT_EQ(field.intrusiongion.size(), 1U);
    const Intrusiongion& region = *field.intrusiongion[0];
    EXPECT_EQ(region.id, 31);
    EXPECT_THAT(Numbers(region.regionNum), ElementsAre(32, 33, 34));
    EXPECT_THAT(Numbers(region.duration), ElementsAre(35, 36, 37));
    EXPECT_THAT(Numbers(region.sensitivityLevel), ElementsAre(38, 39, 40));
    EXPECT_THAT(Numbers(region.rate), ElementsAre(41, 42, 43));
    EXPECT_EQ(field.alarmTime, 44U);
    EXPECT_THAT(field.alarmHandleType, ElementsAre(Handle::WirelessLight));

    EventAbility again = all;
    again.Parse(
        std::string("<EventAbility><TraversingVirtualPlane><AlertLine><id>3</id></AlertLine>"
                    "</TraversingVirtualPlane></EventAbility>"));
    ASSERT_EQ(again.traversingVirtualPlane.alertLine.size(), 3U) << "lists are appended to";
    EXPECT_EQ(again.traversingVirtualPlane.alarmTime, 26U) << "what is not there stays";
}

TEST(EventAbilityTest, TurnsEveryOptionIntoItsCodeAndTellsUnknownOnes)
{
    struct Row
    {
        const OptionCodes& table;
        const char* name;
        std::vector<std::pair<const char*, int>> codes;
    };
    const Row rows[] = {{option_codes::kExceptionTypes,
                         "ExceptionType",
                         {{"diskFull", 0},
                          {"diskError", 1},
                          {"nicBroken", 2},
                          {"ipConflict", 3},
                          {"illAccess", 4},
                          {"videoMismatch", 5},
                          {"badVideo", 6},
                          {"recordingFailure", 7},
                          {"raid", 8},
                          {"resolutionMismatch", 9},
                          {"spareException", 11},
                          {"temperatureException", 12},
                          {"subsystemException", 13},
                          {"fanException", 14},
                          {"POEPoweException", 15}}},
                        {option_codes::kPulseDurations,
                         "PulseDuration",
                         {{"5", 0},
                          {"10", 1},
                          {"30", 2},
                          {"60", 3},
                          {"120", 4},
                          {"300", 5},
                          {"600", 6},
                          {"manual", 7}}},
                        {option_codes::kTrackTypes,
                         "trackType",
                         {{"normalTrack", 0}, {"highSpeedRoadTrack", 1}, {"urbanRoadTrack", 2}}},
                        {option_codes::kAudioModes,
                         "audioMode",
                         {{"sensitivityDetection", 0}, {"thresholdDetection", 1}, {"all", 2}}},
                        {option_codes::kCrossDirections,
                         "crossDirection",
                         {{"bothway", 0}, {"leftToRight", 1}, {"rightToLeft", 2}}}};
    const LogCapture log;
    for (const Row& row : rows) {
        EXPECT_EQ(row.table.entries.size(), row.codes.size()) << row.name;
        for (const auto& [option, code] : row.codes) {
            const int* const found = CodeOf(row.table, option);
            EXPECT_TRUE(found != nullptr && *found == code) << option;
        }
    }
    EXPECT_THAT(log.Messages(), IsEmpty());
    const EventAbility events = Events(
        "<ExceptionAlarm><exceptionType opt='RAID,POEPowerException,raid'/></ExceptionAlarm>"
        "<AlarmOut><pulseDuration opt='05'/></AlarmOut><Track><ManualTrace><trackType "
        "opt=' normalTrack'/></ManualTrace></Track><VoiceDetection><Abnormal><audioMode "
        "opt='All'/></Abnormal></VoiceDetection><TraversingVirtualPlane><AlertLine>"
        "<crossDirection opt='%n'/></AlertLine></TraversingVirtualPlane>");
    EXPECT_THAT(log.Messages(), ElementsAre("[RAID] is not exist in 'ExceptionType'.",
                                            "[POEPowerException] is not exist in 'ExceptionType'.",
                                            "[05] is not exist in 'PulseDuration'.",
                                            "[ normalTrack] is not exist in 'trackType'.",
                                            "[All] is not exist in 'audioMode'.",
                                            "[%n] is not exist in 'crossDirection'."));
    EXPECT_THAT(events.exceptionAlarm.exceptionType, ElementsAre(8));
    EXPECT_TRUE(events.alarmOut.Capable()) << "the list was read, whatever became of it";
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
    {
        const AllocationFault fault(AllocationFault::New, 1);
        EXPECT_FALSE(EventAbility::GetTrackAbility(out, "a", "b", 1));
    }
    EXPECT_FALSE(out.trackEnable) << "a copy that fails halfway leaves the caller's record alone";
    EXPECT_TRUE(EventAbility::GetTrackAbility(out, "a", "b", 1));
    EXPECT_TRUE(out.capable && out.trackEnable && out.manualTrace.enabled);
    EXPECT_EQ(out.stopTrackThreshold.max, 9U);
    EXPECT_THAT(out.manualTrace.trackType, ElementsAre(2, 1));
}

}  // namespace
