// The catalogue: nothing of the public headers is missing, and each row asks for what it says.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/Catalog.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Catalog/Nature.h"
#include "Catalog/Natures.h"
#include "support/AllRecords.h"
#include "support/ScriptedSdk.h"

namespace
{

using namespace CapabilitySet;
using catalog::AllRecords;
using catalog::FindRecord;
using catalog::Nature;
using catalog::NatureOf;
using catalog::RecordEntry;
using testing::IsEmpty;
using TestSupport::AllRecordTypes;
using TestSupport::RecordClass;
using TestSupport::ScriptedSdk;

std::string TextOf(const std::filesystem::path& file)
{
    std::ifstream in(file);
    return {std::istreambuf_iterator<char>(in), {}};
}

/// All files of a folder whose path contains a text, one behind the other.
std::string TextOfAll(const std::string& folder, const std::string& part)
{
    std::string text;
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(SOURCE_FOLDER "/" + folder)) {
        if (entry.path().string().find(part) != std::string::npos) {
            text += TextOf(entry.path());
        }
    }
    return text;
}

/// A class of a public header: its head and body.
struct Class
{
    std::string name;
    std::string text;
};

std::vector<Class> PublicClasses()
{
    std::vector<Class> classes;
    const std::regex head(R"(\n(?:struct|class) (?:CAPABILITYSET_API )?(\w+)\b[^;{]*\{)");
    for (const auto& entry :
         std::filesystem::recursive_directory_iterator(SOURCE_FOLDER "/Common/CapabilitySet")) {
        const std::string path = entry.path().string();
        if (entry.path().extension() != ".h" || path.find("/private/") != std::string::npos) {
            continue;
        }
        const std::string text = TextOf(entry.path());
        for (std::sregex_iterator each(text.begin(), text.end(), head), end; each != end; ++each) {
            const auto begin = static_cast<std::size_t>(each->position());
            classes.push_back({(*each)[1], text.substr(begin, text.find("\n};", begin) - begin)});
        }
    }
    EXPECT_GT(classes.size(), 150U) << "is this how records are still written?";
    return classes;
}

/// Whether it is read from a device's answer, or from an element of one.
bool IsRecord(const Class& each)
{
    // Values that records hold, and what records are made of.
    static const std::set<std::string> others{
        "AbilityDocument", "AbilityRecord",        "ElementRecord",  "JsonRecord",
        "JsonTree",        "MisinfoMinMaxElement", "OptJsonElement", "XmlRecord",
        "MinMaxElement",   "MinMaxPropElement",    "RangeElement",   "MinMaxOrRangeElement",
        "DefaultElement",  "OptElement",           "ChannelAlarm"};
    static const std::regex bases(
        R"(: (public )?(Xml|Json|Ability|Element)(Record|Tree|Document)\b)");
    static const std::regex parse(R"((void|bool) Parse\((const std::string&|_xmlNode\*))");
    return !others.contains(each.name) &&
           (std::regex_search(each.text, bases) || std::regex_search(each.text, parse));
}

TEST(CatalogTest, EveryRecordOfAPublicHeaderHasARowOrIsPartOfOneThatHas)
{
    std::set<std::string> listed;
    for (const RecordClass& type : AllRecordTypes()) {
        listed.insert(type.name);
    }
    for (const Class& each : PublicClasses()) {
        if (IsRecord(each)) {
            EXPECT_TRUE(listed.contains(each.name))
                << "no row of Catalog/*Rows.h has the record " << each.name;
        }
    }
}

TEST(CatalogTest, EveryQueryOfAPublicHeaderHasARow)
{
    const std::string rows = TextOfAll("Catalog", "Rows.h");
    // The task that this starts is polled and deleted by its client.
    const std::set<std::string> others{"GetHFPDCaptureLibCollisionTask"};
    std::set<std::string> types;
    for (const RecordEntry& each : AllRecords()) {
        types.insert(each.type);
    }
    const std::regex query(R"(static [\w:]+ ([Gg]et\w+)\(\s*(\w+)& \w+([^)]*)\))");
    std::size_t queries = 0;
    for (const Class& each : PublicClasses()) {
        for (std::sregex_iterator found(each.text.begin(), each.text.end(), query), end;
             found != end; ++found) {
            const std::string name = (*found)[1];
            const std::string arguments = (*found)[3];
            // With a body, a task or a status it is an operation on something, not a query.
            const bool needsMore = std::regex_search(
                arguments, std::regex(R"(& out\b|const (?!int)\w+& |taskID|int task\b)"));
            if (types.contains((*found)[2]) && !needsMore && !others.contains(name)) {
                ++queries;
                const std::regex row("&" + each.name + "::" + name + "\\b");
                EXPECT_TRUE(std::regex_search(rows, row))
                    << "no row of Catalog/*Rows.h has the query " << each.name << "::" << name;
            }
        }
    }
    EXPECT_GT(queries, 60U) << "is this how queries are still written?";
}

TEST(CatalogTest, NamesAreUniqueAndFoundInAnyCase)
{
    std::set<std::string> names;
    for (const RecordEntry& each : AllRecords()) {
        EXPECT_TRUE(names.insert(each.name).second) << each.name;
        EXPECT_FALSE(each.description.empty()) << each.name;
        EXPECT_LE(each.name.size() + each.description.size(), 78U) << each.name;
    }
    ASSERT_NE(FindRecord("bASICcapability"), nullptr);
    EXPECT_EQ(FindRecord("bASICcapability")->name, "BasicCapability");
    EXPECT_EQ(FindRecord("BasicCapabilities"), nullptr);
}

TEST(CatalogTest, EveryRecordReadsItsSampleAndSaysWhyItCannotReadAnotherText)
{
    for (const RecordEntry& each : AllRecords()) {
        SCOPED_TRACE(each.name);
        const RecordClass& type = TestSupport::RecordTypeNamed(each.type);
        EXPECT_EQ(each.format == catalog::Format::Json, type.IsJson());
        const Reading reading = each.read(type.sample);
        EXPECT_EQ(reading.problem, "");
        EXPECT_FALSE(SameValues(reading.values, each.blank())) << "comparing sees the difference";
        EXPECT_THAT(reading.untaken, IsEmpty());
        for (const char* text : {"", "<foreign/>", "{", "<a", "7"}) {
            EXPECT_NE(each.read(text).problem, "") << text;
            EXPECT_TRUE(SameValues(each.read(text).values, each.blank())) << text;
        }
    }
}

TEST(CatalogTest, ARecordThatIsAskedForHoldsWhatTheDeviceAnswered)
{
    for (const RecordEntry& each : AllRecords()) {
        if (!each.ask) {
            continue;
        }
        SCOPED_TRACE(each.name);
        const std::string sample = TestSupport::RecordTypeNamed(each.type).sample;
        ScriptedSdk& sdk = ScriptedSdk::Fresh();
        sdk.steps = {{.answer = sample, .returnedSize = static_cast<unsigned>(sample.size())}};
        const catalog::Answer answer = each.ask(5, {.channel = 3});
        EXPECT_TRUE(answer.answered) << answer.error;
        EXPECT_EQ(answer.error, 0U);
        EXPECT_TRUE(SameValues(answer.values, each.read(sample).values));
        for (const auto& call : sdk.calls) {
            EXPECT_EQ(call.userID, 5);
        }
        ScriptedSdk::Fresh().steps = {{.error = 7}};
        const catalog::Answer refused = each.ask(5, {});
        EXPECT_FALSE(refused.answered);
        EXPECT_EQ(refused.error, 7U);
        EXPECT_TRUE(SameValues(refused.values, each.blank()));
    }
}

TEST(CatalogTest, SelectorsReachTheDevice)
{
    const auto sent = [](const char* record, const catalog::Selectors& selectors) {
        ScriptedSdk& sdk = ScriptedSdk::Fresh();
        sdk.steps = {{.answer = "<a/>"}};
        FindRecord(record)->ask(5, selectors);
        return sdk.calls.empty() ? std::string() : sdk.calls.back().input + sdk.calls.back().line;
    };
    using testing::HasSubstr;
    EXPECT_THAT(sent("PTZAbility", {.channel = 9}), HasSubstr("<channelNO>9<"));
    EXPECT_THAT(sent("PTZAbility", {}), HasSubstr("<channelNO>1<"));
    EXPECT_THAT(sent("CameraPara", {.channels = std::vector{4, 2}}), HasSubstr("4</Channel"));
    EXPECT_THAT(sent("AudioVideoCompressInfo", {.channel = 3, .audioChannel = 1, .talkChannel = 2}),
                testing::MatchesRegex(".*Audio[^>]*>1<.*Talk[^>]*>2<.*Video[^>]*>3<.*"));
    EXPECT_THAT(sent("WallAbility", {.wall = 6, .output = 7}),
                testing::MatchesRegex(".*wallNO>6<.*channelNO>7<.*"));
    EXPECT_THAT(sent("UserAbility", {.part = "Account"}), HasSubstr("<Account/>"));
    EXPECT_THAT(sent("AudioDetection", {.channel = 3}), HasSubstr("/channels/3/"));
    EXPECT_THAT(sent("PTZPresetList", {.channel = 3}), HasSubstr("/channels/35/presets"));
    EXPECT_EQ(FindRecord("AudioVideoCompressInfo")->selectors,
              (std::vector<std::string>{"audio-channel", "talk-channel", "channel"}));
}

TEST(CatalogTest, NaturesAreThoseOfTheLongestRowThatFits)
{
    const std::vector<std::tuple<const char*, const char*, Nature>> cases{
        {"Wireless", "WirelessSecurity/WPA/sharedKey", Nature::Secret},
        {"SwitchesBasicInfo", "IPAddress/ipAddress", Nature::NetworkAddress},
        {"SwitchesBasicInfo", "IPAddress/DefaultGateway/ipAddress", Nature::NetworkAddress},
        {"AnyRecord", "DeviceInfo/serialNumber", Nature::SerialNumber},
        {"AnyRecord", "serialNumberLength", Nature::Plain},
        {"AnyRecord", "notipAddress", Nature::Plain},
        {"DeviceStatus", "TemperatureList/temperature", Nature::Measurement},
        {"ThermalCap", "temperature", Nature::Plain},
        {"DeviceStatus", "currentDeviceTime", Nature::Time},
        {"FDLibSearchResult", "MatchList/human_data/human_name", Nature::PersonName},
        {"BasicCapability", "HardwareCapability/USBNum", Nature::Plain},
        {"BasicCapability", "", Nature::Plain},
    };
    for (const auto& [record, path, nature] : cases) {
        EXPECT_EQ(NatureOf(record, path), nature) << record << " " << path;
    }
    EXPECT_TRUE(IsIdentity(Nature::SerialNumber) && IsIdentity(Nature::Secret));
    EXPECT_FALSE(IsIdentity(Nature::Plain) || IsIdentity(Nature::Time));
    EXPECT_TRUE(IsVolatile(Nature::Time) && IsVolatile(Nature::State));
    EXPECT_FALSE(IsVolatile(Nature::Secret));
}

TEST(CatalogTest, EachRowOfNaturesNamesAMemberThatExists)
{
    const std::string words = TextOfAll("Common/CapabilitySet", ".h") +
                              TextOfAll("Device/profiles", ".json") +
                              TextOfAll("Device/profiles", ".xml");
    std::set<std::pair<std::string_view, std::string_view>> seen;
    for (const catalog::MemberNature& each : catalog::kNatures) {
        EXPECT_TRUE(seen.insert({each.record, each.member}).second) << each.member << " twice";
        if (each.record.empty()) {
            continue;  // devices say more than records have members for
        }
        const std::string leaf(each.member.substr(each.member.rfind('/') + 1));
        EXPECT_NE(FindRecord(each.record), nullptr) << each.record;
        EXPECT_TRUE(words.find('"' + leaf + '"') != std::string::npos ||
                    words.find('<' + leaf + '>') != std::string::npos ||
                    words.find('<' + leaf + ' ') != std::string::npos)
            << each.record << " " << each.member;
    }
}

}  // namespace
