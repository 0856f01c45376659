// Which kinds of event there are and which reactions each may start.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventTriggerCapAbility.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;

/// A member by the name that it and its element bear.
template <class Record, class Member>
struct Named
{
    const char* name;
    Member Record::*member;
};

#define NAMED(Record, name)  \
    {                        \
        #name, &Record::name \
    }

const std::vector<Named<EventTriggerCap, EventTriggerCapType>> kTriggers{
    NAMED(EventTriggerCap, DiskfullTriggerCap),
    NAMED(EventTriggerCap, DiskerrorTriggerCap),
    NAMED(EventTriggerCap, NicbrokenTriggerCap),
    NAMED(EventTriggerCap, IpconflictTriggerCap),
    NAMED(EventTriggerCap, IllaccesTriggerCap),
    NAMED(EventTriggerCap, BadvideoTriggerCap),
    NAMED(EventTriggerCap, VideomismatchTriggerCap),
    NAMED(EventTriggerCap, IOTriggerCap),
    NAMED(EventTriggerCap, RegionEntranceTriggerCap),
    NAMED(EventTriggerCap, RegionExitingTriggerCap),
    NAMED(EventTriggerCap, LoiteringTriggerCap),
    NAMED(EventTriggerCap, GroupDetectionTriggerCap),
    NAMED(EventTriggerCap, RapidMoveTriggerCap),
    NAMED(EventTriggerCap, ParkingTriggerCap),
    NAMED(EventTriggerCap, UnattendedBaggageTriggerCap),
    NAMED(EventTriggerCap, AttendedBaggageTriggerCap),
    NAMED(EventTriggerCap, ThermometryCap),
    NAMED(EventTriggerCap, FaceLibTriggerCap),
    NAMED(EventTriggerCap, WhiteListTriggerCap),
    NAMED(EventTriggerCap, FaceContrastSuccessTriggerCap),
    NAMED(EventTriggerCap, FaceContrastFailureTriggerCap),
    NAMED(EventTriggerCap, FramesPeopleCountingTriggerCap),
    NAMED(EventTriggerCap, HFPDTriggerCap),
    NAMED(EventTriggerCap, ObjectsThrownDetectionTriggerCap)};

const std::vector<Named<EventTriggerCapType, bool>> kReactions{
    NAMED(EventTriggerCapType, isSupportCenter),
    NAMED(EventTriggerCapType, isSupportRecord),
    NAMED(EventTriggerCapType, isSupportMonitorAlarm),
    NAMED(EventTriggerCapType, isSupportBeep),
    NAMED(EventTriggerCapType, isSupportIO),
    NAMED(EventTriggerCapType, isSupportFTP),
    NAMED(EventTriggerCapType, isSupportEmail),
    NAMED(EventTriggerCapType, isSupportLightAudioAlarm),
    NAMED(EventTriggerCapType, isSupportFocus),
    NAMED(EventTriggerCapType, isSupportPTZ)};

const std::vector<Named<EventTriggerCapType, int>> kMaxima{
    NAMED(EventTriggerCapType, maxPresetActionNum), NAMED(EventTriggerCapType, maxPatrolActionNum),
    NAMED(EventTriggerCapType, maxPatternActionNum)};

const std::vector<Named<EventTARNAbility, bool>> kKinds{
    NAMED(EventTARNAbility, DiskfullTriggerCap),
    NAMED(EventTARNAbility, DiskerrorTriggerCap),
    NAMED(EventTARNAbility, IllaccesTriggerCap),
    NAMED(EventTARNAbility, BlackListTriggerCap),
    NAMED(EventTARNAbility, WhiteListTriggerCap),
    NAMED(EventTARNAbility, VehicleDetectionTriggerCap),
    NAMED(EventTARNAbility, SafetyHelmetDetectionTriggerCap),
    NAMED(EventTARNAbility, HighHDTemperatureTriggerCap),
    NAMED(EventTARNAbility, LowHDTemperatureTriggerCap),
    NAMED(EventTARNAbility, HDImpactTriggerCap),
    NAMED(EventTARNAbility, HDBadBlockTriggerCap),
    NAMED(EventTARNAbility, SevereHDFailureTriggerCap),
    NAMED(EventTARNAbility, WirelessSmokeTriggerCap),
    NAMED(EventTARNAbility, AbnormalRebootTriggerCap),
    NAMED(EventTARNAbility, LogExceptionTriggerCap)};

std::string Element(const std::string& name, const std::string& content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

std::string Document(const std::string& children)
{
    return Element("EventTriggersCap", children);
}

TEST(EventTriggerCapAbilityTest, ReadsEachTriggerReactionAndMaximumIntoItsOwnMember)
{
    // Trigger i has reaction i % 10, and maxima from 3 i on.
    std::string children;
    for (std::size_t i = 0; i < kTriggers.size(); ++i) {
        std::string content;
        for (std::size_t k = 0; k < kReactions.size(); ++k)
            content += Element(kReactions[k].name, i % kReactions.size() == k ? "true" : "false");
        for (std::size_t k = 0; k < kMaxima.size(); ++k)
            content += Element(kMaxima[k].name, std::to_string(3 * i + k));
        children += Element(kTriggers[i].name, content);
    }
    const EventTriggerCap cap(Document(children));
    EXPECT_TRUE(cap.Capable());
    for (std::size_t i = 0; i < kTriggers.size(); ++i) {
        SCOPED_TRACE(kTriggers[i].name);
        const EventTriggerCapType& trigger = cap.*kTriggers[i].member;
        EXPECT_TRUE(trigger.Capable());
        for (std::size_t k = 0; k < kReactions.size(); ++k)
            EXPECT_EQ(trigger.*kReactions[k].member, i % kReactions.size() == k);
        for (std::size_t k = 0; k < kMaxima.size(); ++k)
            EXPECT_EQ(trigger.*kMaxima[k].member, static_cast<int>(3 * i + k));
    }
}

TEST(EventTriggerCapAbilityTest, KeepsAReactionWhoseTextIsNeitherTrueNorFalse)
{
    struct Row
    {
        const char* content;
        bool before;
        bool beeps;
        bool capable;
    };
    const Row rows[] = {{"<isSupportBeep>yes</isSupportBeep>", true, true, true},
                        {"<isSupportBeep>1</isSupportBeep>", false, false, true},
                        {"<isSupportBeep/>", true, true, true},
                        {"<isSupportBeep>false</isSupportBeep>", true, false, true},
                        {"<isSupportBeep>True</isSupportBeep>", false, false, true},
                        {"<isSupportbeep>true</isSupportbeep>", false, false, false},
                        {"", false, false, false}};
    for (const Row& row : rows) {
        EventTriggerCap cap;
        cap.IOTriggerCap.isSupportBeep = row.before;
        cap.Parse(Document(Element("IOTriggerCap", row.content)));
        EXPECT_EQ(cap.IOTriggerCap.isSupportBeep, row.beeps) << row.content;
        EXPECT_EQ(cap.IOTriggerCap.Capable(), row.capable) << row.content;
        EXPECT_EQ(cap.Capable(), row.capable) << row.content;
    }
}

TEST(EventTriggerCapAbilityTest, NotesThePresenceOfEachKindAlone)
{
    std::string all;
    for (const auto& kind : kKinds) {
        const EventTARNAbility one(
            Document(Element(kind.name, "<isSupportIO>false</isSupportIO>")));
        EXPECT_TRUE(one.Capable()) << kind.name;
        for (const auto& other : kKinds)
            EXPECT_EQ(one.*other.member, other.name == kind.name) << other.name;
        all += "<" + std::string(kind.name) + "/>";
    }
    const EventTARNAbility every(Document(all));
    for (const auto& kind : kKinds)
        EXPECT_TRUE(every.*kind.member) << kind.name << " stands out of order";
    EXPECT_FALSE(EventTARNAbility(Document("<diskfullTriggerCap/>")).Capable());
}

TEST(EventTriggerCapAbilityTest, ChannelIsCapableByTheElementAloneBeItsListEmpty)
{
    const auto read = [](const char* child) {
        return ChannelEventAbility(Element("ChannelEventCap", child));
    };
    EXPECT_FALSE(read("<eventTypes opt='a'/>").Capable());
    EXPECT_TRUE(read("<eventType/>").Capable());
    EXPECT_FALSE(read("<eventType/>").eventType.Capable());
    EXPECT_THAT(read("<other/><eventType opt='VMD, IO'/>").eventType.opt,
                ElementsAre("VMD", " IO"));
}

}  // namespace
