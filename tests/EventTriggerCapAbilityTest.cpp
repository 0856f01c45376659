// Which kinds of event there are and which reactions each may start.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventTriggerCapAbility.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using namespace CapabilitySet;
using testing::ElementsAre;

std::string Element(const std::string& name, const std::string& content)
{
    return "<" + name + ">" + content + "</" + name + ">";
}

std::string Document(const std::string& children)
{
    return Element("EventTriggersCap", children);
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

TEST(EventTriggerCapAbilityTest, NotesThePresenceOfEachKindWhateverItsContent)
{
    EventTARNAbility none;
    EventTARNAbility::Fields(none, [](const std::string& name, bool& /*kind*/, auto... /*how*/) {
        for (const char* content : {"", "false", "<isSupportIO>false</isSupportIO>"}) {
            EventTARNAbility kinds(Document(Element(name, content)));
            EXPECT_TRUE(kinds.Capable()) << name;
            EventTARNAbility::Fields(
                kinds, [&](const std::string& other, bool& kind, auto... /*how*/) {
                    EXPECT_EQ(kind, name == other) << other << " in a document of " << name;
                });
        }
    });
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
