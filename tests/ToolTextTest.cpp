// How the command-line tool sets texts, tables, values and arguments.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/writer.h>

#include "CapabilitySet/RecordTree.h"
#include "Tool/Failure.h"
#include "Tool/command/FaultArgument.h"
#include "Tool/record/Base64.h"
#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"
#include "Tool/record/Table.h"
#include "Tool/record/Values.h"
#include "Tool/session/Connection.h"
#include "Tool/session/Paging.h"
#include "Tool/session/Refusal.h"
#include "Tool/session/SearchTime.h"
#include "Tool/terminal/Grid.h"
#include "Tool/terminal/Progress.h"
#include "Tool/terminal/Text.h"

namespace
{

using namespace Tool;
using CapabilitySet::RecordNode;
using Kind = RecordNode::Kind;
using testing::HasSubstr;

class ToolText : public testing::Test
{
protected:
    static void SetUpTestSuite() { UseUtf8Widths(); }
};

TEST_F(ToolText, NothingThatSteersATerminalGetsThrough)
{
    const std::vector<std::pair<std::string, std::string>> cases{
        {"plain", "plain"},
        {"\033]0;owned\007", "\\u001B]0;owned\\u0007"},
        {"a\r\nb\tc\x7f", "a\\r\\nb\\tc\\u007F"},
        {"\xc2\x9b"
         "31m",
         "\\u009B31m"},              // a control sequence in one character
        {"\xff\xc3", "\\xFF\\xC3"},  // no UTF-8, and a cut one
        {std::string("a\0b", 3), "a\\u0000b"},
        // Marks that change the direction of writing: both ends of each range.
        {"\u061c\u200e\u200f\u202a\u202e\u2066\u2069",
         "\\u061C\\u200E\\u200F\\u202A\\u202E\\u2066\\u2069"},
        {"\u202f\u2010", "\u202f\u2010"},
        {"北门", "北门"},
    };
    for (const auto& [given, shown] : cases) {
        EXPECT_EQ(Harmless(given), shown);
    }
    EXPECT_EQ(Harmless("a\n\tb\r\033", true), "a\n\tb\\r\\u001B");
}

TEST_F(ToolText, WidthsAreThoseOfTheTerminal)
{
    EXPECT_EQ(Width("abc"), 3u);
    EXPECT_EQ(Width("北门"), 4u);
    EXPECT_EQ(Width("e\xcc\x81"), 1u);  // a letter and its accent
    EXPECT_EQ(Padded("北", 4), "北  ");
}

TEST_F(ToolText, WrappedLinesFitAndLoseNothing)
{
    const std::string text =
        "one two  three 北门摄像机 four-and-a-very-long-word-that-fits-nowhere end";
    for (const std::size_t width : {1u, 2u, 5u, 9u, 20u, 200u}) {
        std::string joined;
        for (const std::string& line : Wrap(text, width)) {
            // Only a single character may be wider than there is room.
            EXPECT_TRUE(Width(line) <= width || (width == 1 && Width(line) == 2)) << line;
            joined += line;
        }
        const auto letters = [](std::string all) {
            std::erase(all, ' ');
            return all;
        };
        EXPECT_EQ(letters(joined), letters(text)) << width;
    }
    EXPECT_EQ(Wrap("", 10), std::vector<std::string>{""});
}

TEST_F(ToolText, AMistypedNameFindsTheOneThatWasMeant)
{
    const std::vector<std::string> names{"BasicCapability", "PTZAbility", "VcaAbility",
                                         "VideoPicAbility"};
    for (const auto& [typed, meant] :
         std::vector<std::pair<std::string, std::string>>{{"ptzabilty", "PTZAbility"},
                                                          {"BasicCapabilty", "BasicCapability"},
                                                          {"vcaabiliyt", "VcaAbility"},
                                                          {"videopic", "VideoPicAbility"},
                                                          {"Thermometer", ""},
                                                          {"x", ""},
                                                          {"", ""}}) {
        EXPECT_EQ(NearestName(typed, names), meant) << typed;
    }
}

RecordNode Leaf(std::string name, Kind kind, std::string text)
{
    return {std::move(name), kind, std::move(text), true, {}};
}

RecordNode Sample()
{
    RecordNode silent = Leaf("siren", Kind::Range, "");
    silent.announced = false;
    const RecordNode zones{"zones",
                           Kind::Range,
                           {},
                           true,
                           {Leaf("min", Kind::Number, "1"), Leaf("max", Kind::Number, "8"),
                            Leaf("def", Kind::Number, "4")}};
    const RecordNode types{"types",
                           Kind::Options,
                           {},
                           true,
                           {Leaf("", Kind::Text, "motion"), Leaf("", Kind::Text, "vca\033")}};
    const RecordNode inner{
        "Inner", Kind::Record, {}, true, {Leaf("enabled", Kind::Flag, "true"), types, silent}};
    const auto item = [](const std::string& id, const std::string& name) {
        return RecordNode{"",
                          Kind::Record,
                          {},
                          true,
                          {Leaf("id", Kind::Number, id), Leaf("name", Kind::Text, name)}};
    };
    const RecordNode list{"cameras", Kind::List, {}, true, {item("1", "门"), item("12", "yard")}};
    return {"Sample", Kind::Record, {}, true, {zones, inner, list}};
}

TEST_F(ToolText, ARecordIsSetInOneColumnOfValuesWithItsSilentMembersFolded)
{
    EXPECT_EQ(RenderRecord(Sample(), "sim:x", 80, Paint()),
              "Sample  sim:x\n"
              "  zones      1..8 (default 4)\n"
              "\n"
              "  Inner\n"
              "    enabled  yes\n"
              "    types    motion, vca\\u001B\n"
              "    not announced: siren\n"
              "\n"
              "  cameras  2 entries\n"
              "    id  name\n"
              "     1  门\n"
              "    12  yard\n");
}

TEST_F(ToolText, ATooNarrowTerminalLosesNoValue)
{
    const std::string narrow = RenderRecord(Sample(), "sim:x", 20, Paint());
    for (const char* piece : {"motion", "vca", "yard", "(default", "siren"}) {
        EXPECT_THAT(narrow, HasSubstr(piece));
    }
}

TEST_F(ToolText, ElementsShowTheirLimitsOptionsAndUnits)
{
    const auto line = [](std::vector<std::pair<std::string, std::string>> attributes,
                         const std::string& text) {
        CapabilitySet::AbilityElement element{"e", text, std::move(attributes), {}};
        return InOneLine(CapabilitySet::tree::Node("e", element))->text;
    };
    EXPECT_EQ(line({{"min", "1"}, {"max", "8"}, {"def", "2"}}, ""), "1..8 (default 2)");
    EXPECT_EQ(line({{"opt", "a,b"}, {"version", "2"}}, ""), "a, b (version 2)");
    EXPECT_EQ(line({{"opt", "true,false"}}, "true"), "yes: true, false");
    EXPECT_EQ(line({{"unit", "second"}, {"max", "9"}}, ""), "up to 9 second");
    EXPECT_EQ(line({}, ""), "(empty)");
}

TEST_F(ToolText, JsonKeepsTypesOrderAndRepeatedElements)
{
    Json::Value value = ToJson(Sample());
    EXPECT_EQ(value["zones"]["def"], 4);
    EXPECT_EQ(value["Inner"]["enabled"], true);
    EXPECT_TRUE(value["Inner"]["siren"].isNull());
    EXPECT_EQ(value["Inner"]["types"]["opt"][0], "motion");
    EXPECT_EQ(value["cameras"][1]["name"], "yard");
    EXPECT_EQ(Dump(value).find('\033'), std::string::npos);

    EXPECT_EQ(ToJson(Leaf("n", Kind::Number, "18446744073709551615")).asUInt64(), UINT64_MAX);
    for (const char* number : {"0.4", "-0.1", "0.30000000000000004", "1.0", "1e+22", "7",
                               "1.7976931348623157e+308", "123456789.12345679"}) {
        // The shortest text that reads back the same.
        EXPECT_EQ(Dump(ToJson(Leaf("n", Kind::Number, number))), std::string(number) + "\n");
        Json::Value read;
        ASSERT_TRUE(ReadJson(number, read));
        EXPECT_EQ(CapabilitySet::tree::Node("n", read).text, number);
    }
    const CapabilitySet::AbilityElement root{
        "r", "", {{"v", "1"}}, {{"a", "1", {}, {}}, {"b", "2", {}, {}}, {"a", "3", {}, {}}}};
    value = ToJson(CapabilitySet::tree::Node("r", root));
    EXPECT_EQ(value["@v"], "1");
    EXPECT_EQ(value["a"].size(), 2u);
    EXPECT_EQ(value["b"], "2");
}

TEST_F(ToolText, AddressesAreTakenApartOrRefused)
{
    for (const auto& [text, address, user] :
         std::vector<std::tuple<std::string, std::string, std::string>>{
             {"sim:dome", "sim:dome", ""},
             {"HTTP://h", "http://h", ""},
             {"https://admin@h:8443/", "https://h:8443", "admin"},
             {"https://a%40b@[::1]:1", "https://[::1]:1", "a@b"}}) {
        const Address parsed = ParseAddress(text);
        EXPECT_EQ(parsed.address, address);
        EXPECT_EQ(parsed.user, user);
    }
    for (const char* text : {"", "h", "sim:", "ftp://h", "http://", "http://a@", "http://u:p@h",
                             "http://h:0", "http://h:65536", "http://h:x", "http://::1",
                             "http://[::1", "http://[::1]x", "http://h/path", "http://h?x"}) {
        EXPECT_THROW(ParseAddress(text), Failure) << text;
    }
}

TEST_F(ToolText, FaultsAreReadWithTheirUnitsCountsAndPaths)
{
    const Device::Fault drip = ParseFault("drip=10/2s*3@/TARN/a=b*c@d");
    EXPECT_EQ(drip.bytes, 10u);
    EXPECT_EQ(drip.interval, std::chrono::seconds(2));
    EXPECT_EQ(drip.times, 3u);
    EXPECT_EQ(drip.pathPrefix, "/TARN/a=b*c@d");
    EXPECT_EQ(ParseFault("oversize=2M").bytes, 2u << 20);
    EXPECT_EQ(ParseFault("stall=3/2s").interval, std::chrono::seconds(2));
    EXPECT_EQ(ParseFault("5xx").httpStatus, 503);
    EXPECT_EQ(ParseFault("refuse=deviceError").subStatusCode, "deviceError");
    for (const char* text : {"", "dely=1", "delay", "delay=", "delay=1h", "delay=-1", "reset=1",
                             "reset*0", "reset*x", "5xx=404", "refuse=nonsense", "truncate=x"}) {
        EXPECT_THROW(ParseFault(text), Failure) << text;
    }
}

TEST_F(ToolText, DocumentsAreSetForReadingAndLeftAloneWhenTheyCannotBe)
{
    EXPECT_EQ(Pretty("<a><b>1</b><c><d/></c></a>"),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<a>\n  <b>1</b>\n  <c>\n    <d/>\n  "
              "</c>\n</a>\n");
    EXPECT_THAT(Pretty("<a>text <b>bold</b> end</a>"), HasSubstr("text <b>bold</b> end"));
    EXPECT_EQ(Pretty("{\"b\":[1,1.5],\"a\":\"门\"}"),
              "{\n  \"a\": \"门\",\n  \"b\": [\n    1,\n    1.5\n  ]\n}\n");
    for (const char* text :
         {"", "plain", "<a>", "{\"a\":", "<!DOCTYPE a [<!ENTITY e 'x'>]><a>&e;</a>"}) {
        EXPECT_EQ(Pretty(text), text);
    }
    EXPECT_TRUE(IsBinary(std::string("\x89PNG\0", 5)));
    EXPECT_FALSE(IsBinary("\xb1\xb1\xc3\xc5\r\n"));  // a text in another encoding
}

TEST_F(ToolText, StatusDocumentsAreReadInBothForms)
{
    using Members = std::vector<std::pair<std::string, std::string>>;
    EXPECT_EQ(ReadStatus("<S><subStatusCode> busy </subStatusCode><statusCode>2</statusCode></S>"),
              (Members{{"statusCode", "2"}, {"subStatusCode", "busy"}}));
    EXPECT_EQ(ReadStatus("{\"statusCode\":4,\"errorMsg\":\"no\",\"errorCode\":{}}"),
              (Members{{"statusCode", "4"}, {"errorMsg", "no"}}));
    EXPECT_TRUE(ReadStatus("<html>").empty());
    EXPECT_TRUE(ReadStatus("[1]").empty());
}

TEST_F(ToolText, TheIdOfATaskIsQuotedForTheShell)
{
    const std::pair<const char*, std::string> rows[] = {{"12", "12"},
                                                        {"a-B_c", "a-B_c"},
                                                        {"faces 100", "'faces 100'"},
                                                        {"$(id)'s", R"('$(id)'\''s')"}};
    for (const auto& [task, word] : rows) {
        EXPECT_THAT(TaskHint(task), testing::EndsWith(" --task " + word));
    }
}

TEST_F(ToolText, ALineOfProgressTellsWhatMattersInAnyWidth)
{
    const ProgressState searching{.what = "search at sim:a", .step = "searching", .percent = 56};
    EXPECT_EQ(ProgressLine(searching, 60), "search at sim:a: searching  ━━━━━━╸┄┄┄┄┄  56 %  0 s");
    EXPECT_EQ(ProgressLine(searching, 40), "searching  ━━━━━━╸┄┄┄┄┄  56 %  0 s");
    EXPECT_EQ(ProgressLine({.what = "a", .received = 3u << 20, .total = 6u << 20}, 24),
              "a  3.0 of 6.0 MiB  0 s");
    EXPECT_EQ(ProgressLine(searching, 40, Glyphs::Ascii), "searching  ######-.....  56 %  0 s");
    for (std::size_t width = 1; width < 120; ++width) {
        for (const int percent : {-1, 0, 100, 2000000000}) {
            EXPECT_LE(
                Width(ProgressLine({.what = "what", .step = "step", .percent = percent}, width)),
                std::max<std::size_t>(width, 6));
        }
    }
}

/// A device that answers a search with `items` per page and says what `more` and `total` tell it.
struct SearchedDevice
{
    int items;
    bool more;
    int total;
    int limit;
    std::vector<int> asked;  ///< results asked for, page by page
    std::size_t got;
    std::string remark;
};

TEST_F(ToolText, PagesEndAtTheLimitTheTotalOrTheDevicesLastResult)
{
    ConnectionOptions connection;
    connection.device = "sim:dome";
    const Session session(connection);
    for (const SearchedDevice& device : {
             SearchedDevice{4, true, 10, 7, {4, 3}, 7, "7 of 10 results"},
             {4, true, 8, 0, {4, 4}, 8, "8 results"},  // always answers MORE
             {4, true, 0, 8, {4, 4}, 8, "8 results, and there are more"},
             {4, false, 0, 3, {3}, 3, "3 of 4 results"},  // all at once, whatever was asked for
             {0, true, 9, 0, {4}, 0, "0 of 9 results"},
         }) {
        Talk talk(session, "search");
        std::vector<int> asked;
        int next = 0;
        const Report report = FetchPages(
            talk, {.pageSize = 4, .limit = device.limit}, "Found", [&](const PageRequest& request) {
                EXPECT_EQ(request.position, next);
                asked.push_back(request.count);
                Page page{{}, device.more, device.total};
                for (int i = 0; i < device.items; ++i) {
                    page.items.push_back(CapabilitySet::tree::Integer("id", next++));
                }
                return page;
            });
        EXPECT_EQ(asked, device.asked);
        EXPECT_EQ(report.values.children[0].children.size(), device.got);
        EXPECT_EQ(report.remark, device.remark);
    }
}

TEST_F(ToolText, TimesOfASearchAreCompletedAndChecked)
{
    EXPECT_EQ(StartTime({"2026-11-20", ""}, "Z"), "2026-11-20T00:00:00Z");
    EXPECT_EQ(EndTime({"", "2026-11-20 08:30+01:00"}, "Z"), "2026-11-20T08:30:00+01:00");
    EXPECT_EQ(EndTime({"", "2026-11-20"}, ""), "2026-11-20T23:59:59");
    for (const char* text : {"2026-02-29", "2026-13-01", "2026-1-1", "2026-11-20T24:00", "now", "",
                             "2026-11-20T08:30:00 CET", "2026-11-20T08"}) {
        EXPECT_NE(CheckTime(text), "") << text;
    }
    EXPECT_NO_THROW(StartTime({"2026-11-20T09:00+02:00", "2026-11-20T08:00Z"}, "Z"));
    EXPECT_THROW(StartTime({"2026-11-20T09:00Z", "2026-11-20T09:30+01:00"}, "Z"), Failure);
}

TEST_F(ToolText, Base64PadsWhatIsLeftOver)
{
    EXPECT_EQ(ToBase64(""), "");
    EXPECT_EQ(ToBase64("f"), "Zg==");
    EXPECT_EQ(ToBase64("fo"), "Zm8=");
    EXPECT_EQ(ToBase64("\xff"), "/w==");
    EXPECT_EQ(ToBase64("foobar"), "Zm9vYmFy");
}

}  // namespace
