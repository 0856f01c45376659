// Records as trees, their comparison, and the explanation of what a document held beside them.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/RecordTree.h"

#include <cmath>
#include <iterator>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/AlarmAbility.h"
#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/Explain.h"
#include "CapabilitySet/XMLParamInterface/SystemConfig.h"
#include "support/ForeignLocale.h"

namespace
{

using namespace CapabilitySet;

/// One of each type of member.
struct AllKinds
{
    bool flag = true;
    int number = -7;
    long long wide = std::numeric_limits<long long>::min();
    float single = 0.1F;
    double real = 1.0 / 3;
    RecordType::Type code = RecordType::Vca;
    std::string text = "a\"\n";
    OptElement<std::string> options;
    MinMaxElement range;
    MinMaxPropElement property;
    RangeElement list;
    MinMaxOrRangeElement either;
    DefaultElement value;
    OptJsonElement jsonOptions;
    MisinfoMinMaxElement limits;
    std::vector<std::string> texts{"x", "y"};
    std::vector<std::shared_ptr<int>> pointers{std::make_shared<int>(3), nullptr};

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("flag", r.flag);
        field("number", r.number);
        field("wide", r.wide);
        field("single", r.single);
        field("real", r.real);
        field("code", r.code);
        field("text", r.text);
        field("options", r.options);
        field("range", r.range);
        field("property", r.property);
        field("list", r.list);
        field("either", r.either);
        field("value", r.value);
        field("jsonOptions", r.jsonOptions);
        field("limits", r.limits);
        field("texts", r.texts);
        field("pointers", r.pointers);
    }
};

/// The kind as a letter, what is not announced in parentheses.
std::string Outline(const RecordNode& node)
{
    std::string outline = node.name + ":" + "RLFNTOG"[static_cast<int>(node.kind)] + node.text;
    for (const RecordNode& child : node.children) {
        outline += (&child == &node.children.front() ? "[" : " ") + Outline(child);
    }
    outline += node.children.empty() ? "" : "]";
    return node.announced ? outline : "(" + outline + ")";
}

TEST(RecordTreeTest, TellsEveryKindOfMemberWhateverTheClientsLocale)
{
    const TestSupport::ForeignLocale locale;
    AllKinds record;
    record.options.capable = true;
    record.options.opt = {"a"};
    record.options.attri = {"b"};
    record.range.capable = record.range.hasDefault = true;
    record.range.max = 12345;
    record.list.range = {4, 5};
    EXPECT_EQ(Outline(Describe("all", record)),
              "all:R[flag:Ftrue number:N-7 wide:N-9223372036854775808 single:N0.1 "
              "real:N0.3333333333333333 code:N5 text:Ta\"\n options:O[:Ta attri:O[:Tb]] "
              "range:G[min:N0 max:N12345 def:N0] (property:G[min:N0 max:N0]) (list:G[:N4 :N5]) "
              "(either:R[(minMax:G[min:N0 max:N0]) (range:G)]) (value:N0) (jsonOptions:O) "
              "(limits:R[status:R[requestURL:T statusCode:N0 statusString:T subStatusCode:T "
              "errorCode:N0 errorMsg:T] min:N0 max:N0]) texts:L[:Tx :Ty] pointers:L[:N3 (:R)]]");
}

TEST(RecordTreeTest, ComparingSeesEveryDifferenceButThatOfARecordsOwnFlag)
{
    void (*const changes[])(AllKinds&) = {
        [](AllKinds& r) { r.flag = false; },
        [](AllKinds& r) { r.number = 7; },
        [](AllKinds& r) { ++r.wide; },
        [](AllKinds& r) { r.single = 0.2F; },
        [](AllKinds& r) { r.real = std::nextafter(r.real, 1.0); },
        [](AllKinds& r) { r.code = RecordType::Alarm; },
        [](AllKinds& r) { r.text += ' '; },
        [](AllKinds& r) { r.options.capable = true; },
        [](AllKinds& r) { r.options.opt = {""}; },
        [](AllKinds& r) { r.options.attri = {""}; },
        [](AllKinds& r) { r.range.hasDefault = true; },
        [](AllKinds& r) { r.range.capable = true; },
        [](AllKinds& r) { r.property.max = 1; },
        [](AllKinds& r) { r.list.range = {0}; },
        [](AllKinds& r) { r.list.hasDefault = true; },
        [](AllKinds& r) { r.either.minMax.min = 1; },
        [](AllKinds& r) { r.either.range.range = {0}; },
        [](AllKinds& r) { r.value.SetCapable(); },
        [](AllKinds& r) { r.jsonOptions.opt = {"a"}; },
        [](AllKinds& r) { r.limits.max = 1; },
        [](AllKinds& r) { r.limits.status.errorMsg = "e"; },
        [](AllKinds& r) { r.texts.pop_back(); },
        [](AllKinds& r) { *r.pointers.front() = 4; },
        [](AllKinds& r) { r.pointers.back() = std::make_shared<int>(0); },
    };
    const RecordNode unchanged = Describe({}, AllKinds());
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        AllKinds changed;
        changed.pointers.front() = std::make_shared<int>(3);
        EXPECT_TRUE(SameFields(changed, AllKinds()));
        changes[i](changed);
        EXPECT_FALSE(SameValues(Describe({}, changed), unchanged)) << "change " << i;
    }
    BasicCapability flagged;
    flagged.valid = true;
    EXPECT_TRUE(SameFields(flagged, BasicCapability()));
}

TEST(RecordTreeTest, AnAbilityDocumentIsTheTreeOfItsElements)
{
    const PTZAbility read("<PTZAbility v='2'><a>1</a><b x='y'>2<c/></b></PTZAbility>");
    EXPECT_EQ(Outline(Describe("ptz", read)), "ptz:R[@v:T2 a:T1 b:R2[@x:Ty c:T]]");
    EXPECT_FALSE(Describe("ptz", PTZAbility()).announced);
}

template <class Record>
std::vector<std::string> Explained(const std::string& content, const char* root)
{
    std::vector<std::string> lines;
    const std::string text = std::string("<") + root + ">" + content + "</" + root + ">";
    const Reading reading = CapabilitySet::Explain<Record>(root, text);
    EXPECT_EQ(reading.values, Describe(root, Record(text)));
    for (const Untaken& each : reading.untaken) {
        lines.push_back(std::to_string(each.line) + " " + each.path + ": " + each.reason);
    }
    return lines;
}

using Lines = std::vector<std::string>;

TEST(RecordTreeTest, ExplainNamesWhatWasPassedOverAndWhy)
{
    EXPECT_EQ(Explained<BasicCapability>(
                  "<a/>\n<HardwareCapability><USBNum>1</USBNum>\n<RS485Num/><USBNum/><!--x-->y"
                  "<SDNum/>\n<SDNum/><Sensor><z/></Sensor></HardwareCapability><b><c/></b>",
                  "BasicCapability"),
              (Lines{"1 a: unknown", "4 b: unknown",
                     "2 HardwareCapability/USBNum: out of order: stands before RS485Num, which is "
                     "read first",
                     "4 HardwareCapability/SDNum: only the first of this name is read",
                     "4 HardwareCapability/Sensor/z: unknown"}));
    EXPECT_EQ(Explained<BasicCapability>("<HardwareCapability>", "BasicCapability"), Lines());
}

TEST(RecordTreeTest, ExplainFoldsWhatOneMisplacedElementCost)
{
    std::string content;
    BasicCapability record;
    HardwareCapability::Fields(record.hardware,
                               [&](const char* name, auto&&... /*member and how*/) {
                                   content.append("<").append(name).append("/>");
                               });
    const std::size_t first = content.find('>') + 1;
    content = content.substr(first) + "\n" + content.substr(0, first);
    const std::string text = "<BasicCapability><HardwareCapability>" + content +
                             "</HardwareCapability></BasicCapability>";
    const Reading reading = CapabilitySet::Explain<BasicCapability>("BasicCapability", text);
    ASSERT_EQ(reading.untaken.size(), 1U);
    EXPECT_EQ(reading.untaken[0].line, 2);
    EXPECT_GT(reading.untaken[0].count, 40U);
    EXPECT_THAT(reading.untaken[0].reason, testing::EndsWith(" more"));
}

TEST(RecordTreeTest, ExplainLooksIntoTheItemsOfLists)
{
    EXPECT_EQ(
        Explained<EventAbility>(
            "<FieldDetection><alarmTime>1</alarmTime><Intrusiongion><id>1</id>"
            "<x/></Intrusiongion><alarmTime>2</alarmTime>\n<Intrusiongion><y/></Intrusiongion>"
            "</FieldDetection>",
            "EventAbility"),
        (Lines{"2 FieldDetection/Intrusiongion: out of order: read before the 2 "
               "elements in front of it, which were lost: alarmTime, alarmTime",
               "1 FieldDetection/Intrusiongion/x: unknown",
               "2 FieldDetection/Intrusiongion/y: unknown"}));
    EXPECT_EQ(Explained<DeviceStatus>("<FanList><Fan><speed>1</speed><hum/></Fan><pump/></FanList>",
                                      "DeviceStatus"),
              (Lines{"1 FanList/pump: unknown", "1 FanList/Fan/hum: unknown"}));
    EXPECT_EQ(Explained<AlarmAbility>("<channelEntry><PIRAlarm><x/></PIRAlarm></channelEntry>",
                                      "AlarmAbility"),
              Lines{"1 channelEntry/PIRAlarm/x: unknown"});
}

}  // namespace
