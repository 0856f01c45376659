// The table of MAC companies: every row, the inserting lookup, its log line, failing memory.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"

#include <cstdlib>
#include <fstream>
#include <memory>
#include <set>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/reader.h>

#include "CapabilitySet/private/MacCompanyTexts.h"
#include "support/AllocationFaults.h"
#include "support/LogCapture.h"

namespace
{

using CapabilitySet::CMacCompanyHelper;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

/// Tells a private member of the class to this file: an explicit instantiation may name it.
template <class Tag, auto Member>
struct Teller
{
    friend constexpr auto Member_(Tag) { return Member; }
};
struct OwnRows
{
    friend constexpr auto Member_(OwnRows);
};
struct Converter
{
    friend constexpr auto Member_(Converter);
};
template struct Teller<OwnRows, &CMacCompanyHelper::own_>;
template struct Teller<Converter, &CMacCompanyHelper::convertStringToMap>;

/// What the object has beside the table of all objects.
const auto& Added(const CMacCompanyHelper& helper)
{
    return helper.*Member_(OwnRows{});
}

struct Row
{
    std::string prefix;
    std::string label;
    int text = 0;
};

std::vector<Row> TableRows()
{
    std::ifstream file(MAC_TABLE);
    std::vector<Row> rows;
    for (Row row; file >> row.prefix >> row.label >> row.text;) {
        rows.push_back(row);
    }
    return rows;
}

/// The prefixes that the object labels otherwise than the table does.
std::vector<std::string> WrongPrefixes(CMacCompanyHelper& helper)
{
    std::set<std::string> seen;
    std::vector<std::string> wrong;
    for (const Row& row : TableRows()) {
        if (seen.insert(row.prefix).second && helper.getCompanyNameByMAc(row.prefix) != row.label) {
            wrong.push_back(row.prefix);
        }
    }
    return wrong;
}

// A death test runs before the others, in a process of its own where nothing is loaded yet.
TEST(MacCompanyLoadDeathTest, KeepsWhatWasLoadedWhenMemoryRunsOut)
{
    const auto loadWithFaults = [] {
        int partly = 0;
        int faults = 0;
        for (std::size_t ordinal = 1;; ordinal += 1 + ordinal / 8) {
            const TestSupport::AllocationFault fault(TestSupport::AllocationFault::New, ordinal);
            CMacCompanyHelper helper;
            const bool struck = TestSupport::AllocationFault::Struck();
            const TestSupport::NoAllocationFaults pause;
            if (!struck) {
                break;
            }
            ++faults;
            if (Added(helper).empty()) {
                continue;  // loading again would make the table of all objects
            }
            ++partly;
            helper.initialTable();
            if (!WrongPrefixes(helper).empty()) {
                std::exit(1);
            }
        }
        std::exit(faults > 20 && partly > 5 ? 0 : 2);
    };
    EXPECT_EXIT(loadWithFaults(), testing::ExitedWithCode(0), "");
}

/// A client's object that is destroyed after the table that all share, and looks companies up.
struct LastUser
{
    LastUser() = default;
    ~LastUser()
    {
        const bool isTold = kept->getCompanyNameByMAc("405582") == "nokia";
        kept.reset();  // the last that held the table
        const bool isToldAnew = CMacCompanyHelper().getCompanyNameByMAc("405582") == "nokia";
        std::_Exit(isTold && isToldAnew ? 7 : 2);
    }
    LastUser(const LastUser&) = delete;
    LastUser& operator=(const LastUser&) = delete;

    std::unique_ptr<CMacCompanyHelper> kept;
};

TEST(MacCompanyLoadDeathTest, StaysUsableForStaticObjectsThatOutliveTheTable)
{
    const auto exit = [] {
        static LastUser user;
        user.kept = std::make_unique<CMacCompanyHelper>();
        std::exit(0);
    };
    EXPECT_EXIT(exit(), testing::ExitedWithCode(7), "");
}

TEST(MacCompanyTextsTest, HoldTheRowsAsMembersWithBlanksBetween)
{
    std::vector<std::size_t> sizes;
    std::size_t characters = 0;
    for (const std::string_view text : CapabilitySet::MacCompanyTexts()) {
        Json::Value root;
        ASSERT_TRUE(Json::Reader().parse(std::string(text), root));
        sizes.push_back(root.size());
        characters += text.size();
    }
    EXPECT_THAT(sizes, ElementsAre(1812, 1784, 802));
    EXPECT_NEAR(static_cast<double>(characters), 116'000, 500);
    EXPECT_THAT(CapabilitySet::MacCompanyTexts()[0], HasSubstr(R"("405582" : "nokia",   )"));
}

TEST(MacCompanyHelperTest, TellsEveryRowOfTheTable)
{
    CMacCompanyHelper helper;
    EXPECT_EQ(TableRows().size(), 4398U);
    EXPECT_THAT(WrongPrefixes(helper), IsEmpty());
    EXPECT_THAT(Added(helper), IsEmpty());
}

TEST(MacCompanyHelperTest, TellsTheCompaniesThatClientsCountOn)
{
    CMacCompanyHelper helper;
    const std::vector<std::pair<const char*, const char*>> rows{
        {"405582", "nokia"},   {"a4e31b", "nokia"},
        {"086083", "zte"},     {"10327e", "huawei"},
        {"30fbb8", "huawei"},  {"a44519", "xiaomi"},
        {"e4b2fb", "apple"},   {"98d293", "google"},
        {"d490e0", "topcon"},  {"0015f2", "asus"},
        {"001ecb", "rpc"},     {"fcd733", "tp-link"},
        {"fcd908", "xiaomi"},  {"b8b42e", "gionee"},
        {"40558", ""},         {"4055820", ""},
        {"40:55:82", ""},      {"40-55-82", ""},
        {"A4E31B", ""},        {"405582001122", ""},
        {" 405582", ""},       {"", ""},
        {"not an address", ""}};
    for (const auto& [prefix, label] : rows) {
        EXPECT_EQ(helper.getCompanyNameByMAc(prefix), label) << prefix;
    }
}

TEST(MacCompanyHelperTest, AnUnknownPrefixIsAddedOnceAndToItsObjectAlone)
{
    CMacCompanyHelper helper;
    CMacCompanyHelper other;
    EXPECT_EQ(helper.getCompanyNameByMAc("000000"), "");
    EXPECT_EQ(helper.getCompanyNameByMAc("000000"), "");
    EXPECT_THAT(Added(helper), UnorderedElementsAre(Pair("000000", "")));
    EXPECT_THAT(Added(other), IsEmpty());
    CMacCompanyHelper copy = helper;
    copy.getCompanyNameByMAc("\xff");
    EXPECT_THAT(Added(copy), UnorderedElementsAre(Pair("000000", ""), Pair("\xff", "")));
    helper.initialTable();
    const CMacCompanyHelper moved = std::move(helper);
    EXPECT_THAT(Added(moved), UnorderedElementsAre(Pair("000000", "")));
}

TEST(MacCompanyHelperTest, ATextAddsItsMembersThatAreTextsAndChangesNone)
{
    CMacCompanyHelper helper;
    const auto convert = [&helper](const std::string& text) {
        (helper.*Member_(Converter{}))(text);
    };
    convert(
        R"({"ffff02" : "second", /* a comment */ "ffff01" : "first", "number" : 1, "null" : null,
                "list" : ["x"], "object" : {"x" : "y"}, "true" : true})");
    convert(R"({"ffff00" : "zero", "ffff01" : "later", "ffff03" : ""})");
    for (const char* const text : {"", "{", R"({"a" : "b")", R"(["c"])", R"("d")", "null", "1"}) {
        EXPECT_NO_THROW(convert(text)) << text;
    }
    EXPECT_THAT(Added(helper), UnorderedElementsAre(Pair("ffff00", "zero"), Pair("ffff01", "first"),
                                                    Pair("ffff02", "second"), Pair("ffff03", "")));
}

TEST(MacCompanyHelperTest, EachLookupWritesOneLineWithItsPlace)
{
    CMacCompanyHelper helper;
    const TestSupport::LogCapture log;
    helper.getCompanyNameByMAc("405582");
    helper.getCompanyNameByMAc("unknown");
    ASSERT_THAT(log.Messages(),
                ElementsAre("CMacCompanyHelper::getCompanyNameByMAc: strCompanyName [nokia]",
                            "CMacCompanyHelper::getCompanyNameByMAc: strCompanyName []"));
    for (const TestSupport::LogLine& line : log.Lines()) {
        EXPECT_EQ(line.level, "INFO");
        EXPECT_EQ(line.file, "Common/CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.cpp");
        EXPECT_EQ(line.function, "CapabilitySet::CMacCompanyHelper::getCompanyNameByMAc");
        EXPECT_GT(line.line, 0);
    }
}

TEST(MacCompanyHelperTest, ALookupSurvivesFailingMemory)
{
    CMacCompanyHelper helper;
    const std::string unknown(100, 'f');
    for (std::size_t ordinal = 1; ordinal <= 5; ++ordinal) {
        std::string known = "405582";
        std::string argument = unknown + static_cast<char>('0' + ordinal);
        const TestSupport::AllocationFault fault(TestSupport::AllocationFault::New, ordinal, true);
        EXPECT_EQ(helper.getCompanyNameByMAc(std::move(known)), "nokia");
        EXPECT_EQ(helper.getCompanyNameByMAc(std::move(argument)), "");
    }
}

}  // namespace
