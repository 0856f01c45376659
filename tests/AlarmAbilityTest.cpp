// What a channel's alarms can do, and the memory of 3D positioning.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AlarmAbility.h"

#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "support/LogCapture.h"
#include "support/ScriptedSdk.h"
#include "support/XmlTree.h"

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::LogCapture;
using TestSupport::ScriptedSdk;
using TestSupport::XmlTree;

using Handle = AlarmHandleType;

std::string Entry(const std::string& children)
{
    return "<AlarmAbility version='2.0' xmlns='urn:a'> <!-- x --> <channelEntry>" + children +
           "</channelEntry></AlarmAbility>";
}

constexpr const char* kAll =
    "<channelID>33</channelID>"
    "<PIRAlarm><enabled opt='true'/><alarmTime> 30 </alarmTime><alarmHandleType opt='audio'/>"
    "</PIRAlarm>"
    "<wirelessAlarm><enabled opt='false'/><alarmTime>-1</alarmTime></wirelessAlarm>"
    "<callHelpAlarm><enabled opt='true,false'/><alarmHandleType opt='center,record'/>"
    "</callHelpAlarm>";

TEST(AlarmAbilityTest, ReadsEachAlarmOfAChannel)
{
    const AlarmAbility ability(Entry(kAll) + " ");
    ASSERT_EQ(ability.entries.size(), 1U);
    const channelEntry& entry = *ability.entries.front();
    EXPECT_TRUE(ability.Capable() && entry.Capable());
    EXPECT_EQ(entry.channelID, 33U);
    EXPECT_TRUE(entry.pirAlarm.enabled && entry.pirAlarm.hasAlarmTime);
    EXPECT_EQ(entry.pirAlarm.alarmTime, 30U);
    EXPECT_THAT(entry.pirAlarm.alarmHandleType, ElementsAre(Handle::Audio));
    EXPECT_FALSE(entry.wirelessAlarm.enabled);
    EXPECT_EQ(entry.wirelessAlarm.alarmTime, 4294967295U);
    EXPECT_THAT(entry.wirelessAlarm.alarmHandleType, IsEmpty());
    EXPECT_FALSE(entry.callHelpAlarm.enabled || entry.callHelpAlarm.hasAlarmTime);
    EXPECT_TRUE(entry.callHelpAlarm.Capable());
    EXPECT_THAT(entry.callHelpAlarm.alarmHandleType, ElementsAre(Handle::Center));
}

TEST(AlarmAbilityTest, LosesWhatStandsBeforeTheCursor)
{
    const AlarmAbility ability(
        Entry("<PIRAlarm><alarmTime>1</alarmTime></PIRAlarm><channelID>2</channelID>"
              "<wirelessAlarm><alarmTime>3</alarmTime></wirelessAlarm>"));
    const channelEntry& entry = *ability.entries.at(0);
    EXPECT_FALSE(entry.pirAlarm.Capable());
    EXPECT_EQ(entry.channelID, 2U);
    EXPECT_EQ(entry.wirelessAlarm.alarmTime, 3U);
}

TEST(AlarmAbilityTest, NestedRecordsTakeTheFirstChildOfTheirElement)
{
    const XmlTree tree("<PIRAlarm> <enabled opt='true'/><alarmTime>4</alarmTime></PIRAlarm>");
    EXPECT_TRUE(PIRAlarm(tree.First()).enabled);
    EXPECT_EQ(WirelessAlarm(tree.First()).alarmTime, 4U);
    EXPECT_TRUE(CallHelpAlarm(tree.First()).Capable());
    EXPECT_FALSE(PIRAlarm(tree.Root()).Capable()) << "the element itself is not searched";
    EXPECT_FALSE(PIRAlarm(static_cast<_xmlNode*>(nullptr)).Capable());
    EXPECT_EQ(channelEntry(XmlTree("<e><channelID>5</channelID></e>").First()).channelID, 5U);
}

TEST(AlarmAbilityTest, AnAnnouncedFlagIsSetByASingleOptionAlone)
{
    const std::tuple<const char*, bool, bool, bool> rows[] = {
        {"<enabled opt='true,false'/>", true, true, true},
        {"<enabled opt='true,false'/>", false, false, true},
        {"<enabled opt='True'/>", true, false, true},
        {"<enabled opt=',true,'/>", false, true, true},
        {"<enabled opt=''/>", true, true, true},
        {"<enabled attri='x'/>", true, true, true},
        {"<enabled>false</enabled>", true, true, false},
        {"<alarmTime>abc</alarmTime>", true, true, true}};
    for (const auto& [children, before, after, capable] : rows) {
        PIRAlarm alarm;
        alarm.enabled = before;
        alarm.Parse(XmlTree(std::string("<a>") + children + "</a>").First());
        EXPECT_EQ(alarm.enabled, after) << children << before;
        EXPECT_EQ(alarm.Capable(), capable) << children;
    }
}

TEST(AlarmAbilityTest, LeavesTheRecordAloneWhateverIsNoDocumentOfItsOwn)
{
    AlarmAbility ability(Entry(kAll));
    const LogCapture log;
    ability.Parse(std::string());
    EXPECT_THAT(log.Messages(), IsEmpty());
    ability.Parse(std::string("<alarmAbility/>"));
    ability.Parse(std::string("<AlarmAbility><channelEntry></AlarmAbility>"));
    EXPECT_EQ(ability.entries.size(), 1U);
    EXPECT_TRUE(ability.Capable());
    ASSERT_EQ(log.Messages().size(), 2U);
    EXPECT_EQ(log.Messages()[0], "The root element is mismatched with the XML.");
    EXPECT_THAT(log.Messages()[1],
                testing::StartsWith("Cann't parse the XML, The error is at line[1], the error "
                                    "message is ["));
    EXPECT_EQ(log.Lines()[0].file.substr(log.Lines()[0].file.rfind("Common/")),
              "Common/CapabilitySet/AlarmAbility.cpp");
}

TEST(AlarmAbilityTest, QueryLendsItsLoginToTheHandlingOptionsAndTheLastOneStays)
{
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.texts[10] = Entry(kAll);
    sdk.texts[1] =
        "<BasicCapability><SoftwareCapability><UploadFTP>true</UploadFTP>"
        "</SoftwareCapability></BasicCapability>";
    EXPECT_EQ(AlarmQueryHandle(), -1);
    AlarmAbility out;
    unsigned err = 1;
    ASSERT_TRUE(AlarmAbility::GetAlarmAbility(out, err, 7, 3));
    const channelEntry& entry = *out.entries.at(0);
    EXPECT_THAT(entry.pirAlarm.alarmHandleType, ElementsAre(Handle::Audio, Handle::UploadFtp));
    EXPECT_THAT(entry.callHelpAlarm.alarmHandleType,
                ElementsAre(Handle::Center, Handle::UploadFtp));
    ASSERT_EQ(sdk.calls.size(), 4U) << "channel, alarm ability, and one question for each list";
    EXPECT_EQ(sdk.calls[2].userID, 7);
    EXPECT_EQ(sdk.calls[3].code, 1U);
    EXPECT_EQ(AlarmQueryHandle(), 7);

    // A device that cannot answer the question has said nothing of FTP.
    sdk.texts.erase(1);
    sdk.steps = {{.error = 9}};
    EXPECT_TRUE(AlarmAbility::GetAlarmAbility(out, err, 8, 3));
    EXPECT_EQ(err, 0U);
    EXPECT_THAT(out.entries.at(0)->pirAlarm.alarmHandleType, ElementsAre(Handle::Audio));
    SetAlarmQueryHandle(-1);
}

TEST(DynChannelAbilityTest, RemembersTheFirstFlagOfEachKey)
{
    const auto save = DynChannelAbility::SaveIsSupper3DPTZAbilityWithChannel;
    const auto get = DynChannelAbility::GetIsSupper3DPTZAbilityWithChannel;
    EXPECT_TRUE(save(true, "a", "b", -1));
    EXPECT_TRUE(save(false, "a", "b", -1));
    EXPECT_TRUE(save(false, "a", "b", 1));
    bool support = false;
    EXPECT_TRUE(get(support, "a", "b", -1));
    EXPECT_TRUE(support);
    EXPECT_FALSE(get(support, "a", "b", 2));
    EXPECT_FALSE(get(support, "a", std::string("b\0", 2), 1));
    EXPECT_TRUE(support) << "a key without a flag leaves the caller's alone";
    EXPECT_TRUE(get(support, "a", "b", 1));
    EXPECT_FALSE(support);
}

TEST(DynChannelAbilityTest, TypedMemberFollowsItsElement)
{
    DynChannelAbility ability(
        "<DynChannelAbility><Support3DPTZ>1</Support3DPTZ>"
        "</DynChannelAbility>");
    EXPECT_TRUE(ability.Capable() && ability.Support3DPTZ);
    ability.Parse(std::string("<DynChannelAbility/>"));
    EXPECT_TRUE(ability.Support3DPTZ) << "what a second document does not hold stays";
    ability.Parse(
        std::string("<DynChannelAbility><Support3DPTZ>TRUE</Support3DPTZ>"
                    "</DynChannelAbility>"));
    EXPECT_FALSE(ability.Support3DPTZ);
    ability.Parse(
        std::string("<DynChannelAbility><Support3DPTZ><x>true</x></Support3DPTZ>"
                    "</DynChannelAbility>"));
    EXPECT_TRUE(ability.Support3DPTZ) << "a text is that of the elements below too";
}

}  // namespace
