// JSON records by their field lists: what is read, what stays, what is written back.
// SPDX-License-Identifier: Apache-2.0
#include <functional>
#include <string>
#include <type_traits>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/reader.h>
#include <json/value.h>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "support/AllRecords.h"

namespace
{

using namespace CapabilitySet;
using namespace TestSupport;
using testing::ElementsAre;
using testing::IsEmpty;

Json::Value Parsed(const std::string& text)
{
    Json::Value value;
    EXPECT_TRUE(Json::Reader().parse(text, value)) << text;
    return value;
}

/// Puts each of `kinds` in the place of each value in turn.
void ReplaceEach(Json::Value& value, const Json::Value& kinds, const std::function<void()>& check)
{
    const Json::Value before = value;
    for (const Json::Value& kind : kinds) {
        value = kind;
        check();
        value = before;
    }
    for (Json::Value& child : value) {
        ReplaceEach(child, kinds, check);
    }
}

/// The records that are read from JSON and written back.
std::vector<RecordClass> JsonTypes()
{
    std::vector<RecordClass> types;
    for (const RecordClass& type : AllRecordTypes()) {
        if (type.IsJson() && type.isSent) {
            types.push_back(type);
        }
    }
    EXPECT_GT(types.size(), 60U);
    return types;
}

/// The members of a record's sample.
Json::Value SampleMembers(const RecordClass& type)
{
    const Json::Value sample = Parsed(type.sample);
    return type.root.empty() ? sample : sample[type.root];
}

/// A document that holds these members of a record.
std::string TextOf(const RecordClass& type, const Json::Value& members)
{
    Json::Value document;
    (type.root.empty() ? document : document[type.root]) = members;
    return document.toStyledString();
}

std::vector<RecordNode> Members(const AnyRecord& record)
{
    return record.Describe().children;
}

bool SameFields(const AnyRecord& a, const AnyRecord& b)
{
    return SameValues(a.Describe(), b.Describe());
}

TEST(JsonRecordTest, FillsFromEachKeyItsOwnMemberAlone)
{
    for (const RecordClass& type : JsonTypes()) {
        const Json::Value sample = SampleMembers(type);
        const auto full = Members(*type.Read(type.sample));
        const auto defaults = Members(*type.make());
        for (const std::string& name : type.names) {
            SCOPED_TRACE(type.name + ": " + name);
            Json::Value members;
            members[name] = sample[name];
            const auto read = Members(*type.Read(TextOf(type, members)));
            for (std::size_t i = 0; i < read.size(); ++i) {
                const bool isFilled = read[i].name == name;
                EXPECT_EQ(SameValues(read[i], defaults[i]), !isFilled) << read[i].name;
                EXPECT_EQ(SameValues(read[i], full[i]), isFilled) << read[i].name;
            }
        }
    }
}

TEST(JsonRecordTest, WritesBackWhatItReadAndWhatItDidNot)
{
    for (const RecordClass& type : JsonTypes()) {
        SCOPED_TRACE(type.name);
        const RecordPointer record = type.Read(type.sample);
        const std::string written = record->Make();
        if (type.name != "AlarmHostBypassCfg") {  // whose body holds the zone and nothing else
            EXPECT_EQ(Parsed(written), Parsed(type.sample)) << written;
        }
        EXPECT_EQ(type.Read(written)->Make(), written);
        const RecordPointer bare = type.Read(type.sample);
        if (!type.names.empty()) {
            *bare->Root() = Json::Value();
        }
        EXPECT_TRUE(SameFields(*type.Read(bare->Make()), *record)) << "without what was not read";
    }
}

TEST(JsonRecordTest, EndsAtAMemberOfTheWrongKindAsAPlainReaderDoes)
{
    const Json::Value kinds = Parsed(
        R"([null, true, 7, -1, 1e300, 4294967296, 2.5, "text", "", "7", [], [1], [[]], {}, {"a": 1}])");
    for (const RecordClass& type : JsonTypes()) {
        Json::Value sample = SampleMembers(type);
        for (const std::string& name : sample.getMemberNames()) {
            ReplaceEach(sample[name], kinds, [&] {
                const std::string text = TextOf(type, sample);
                const RecordPointer expected = type.make();
                type.readPlainly(text, *expected);
                const RecordPointer record = type.Read(text);
                ASSERT_TRUE(record->IsSame(*expected)) << type.name << text;
                ASSERT_EQ(*record->Root(), sample);
                // Whoever has no outputs to switch sends nothing.
                ASSERT_TRUE(!record->Make().empty() || type.name == "AlarmHostOutputCfg") << text;
            });
        }
    }
}

TEST(JsonRecordTest, SurvivesTextsThatAreNoDocuments)
{
    const std::string deep(1500, '[');
    for (const RecordClass& type : JsonTypes()) {
        SCOPED_TRACE(type.name);
        const std::vector<std::string> texts{"",
                                             "null",
                                             "[]",
                                             "[1, 2]",
                                             "7",
                                             "\"text\"",
                                             "<a/>",
                                             std::string(4, '\0'),
                                             "{\"" + type.root + "\": " + deep,
                                             deep + std::string(1500, ']'),
                                             "\xEF\xBB\xBF" + type.sample};
        const RecordPointer kept = type.Read(type.sample);
        for (const std::string& each : texts) {
            EXPECT_TRUE(SameFields(*type.Read(each), *type.make())) << each;
            EXPECT_TRUE(type.Read(each)->Root()->isNull()) << each;
            Json::Value value;
            if (!json::ParseText(each.substr(0, 900), value) ||
                !(value.isNull() || value.isObject())) {
                kept->Parse(each);
            }
        }
        const RecordPointer whole = type.Read(type.sample);
        EXPECT_TRUE(kept->IsSame(*whole)) << "what cannot be read changes nothing";
        const std::string list = "{\"" + type.root + "\": [1]}";
        EXPECT_TRUE(type.root.empty() || type.Read(list)->Root()->isNull())
            << "a list cannot be sent back";
    }
}

TEST(JsonRecordTest, TakesOfDuplicateKeysTheLastAndOfNumbersWhatFits)
{
    struct Case
    {
        const char* members;
        std::vector<int> read;
    };
    const std::vector<Case> cases{
        {R"("partitionNum": 1, "partitionNum": 2, "localZoneNum": 3)", {2, 3, 0}},
        {R"("partitionNum": 1, "localZoneNum": 2147483648, "extendZoneNum": 3)", {1, 0, 0}},
        {R"("partitionNum": -2147483648, "localZoneNum": 1.9, "extendZoneNum": true)",
         {-2147483647 - 1, 1, 1}},
        {R"("partitionNum": 1, "localZoneNum": 99999999999999999999, "extendZoneNum": 3)",
         {1, 0, 0}},
        {R"("partitionNum": 1, "localZoneNum": "2", "extendZoneNum": 3)", {1, 0, 0}},
        {R"("partitionNum": 1, "localZoneNum": null, "extendZoneNum": 3)", {1, 0, 3}},
        {R"("partitionNum": 1, "localZoneNum": 1e400)", {0, 0, 0}},
    };
    for (const Case& each : cases) {
        const AlarmHostTARNCapability record("{\"SecurityCPCap\": {" + std::string(each.members) +
                                             "}}");
        EXPECT_THAT((std::vector{record.partitionNum, record.localZoneNum, record.extendZoneNum}),
                    testing::ElementsAreArray(each.read))
            << each.members;
    }
}

TEST(JsonRecordTest, RaisesAPartsFlagOnlyWhenAllOfItWasRead)
{
    const auto read = [](const char* zone) {
        return AlarmHostOperateTARNCapability("{\"HostControlCap\": {\"ZoneCap\": " +
                                              std::string(zone) + ", \"isSptOutputsCtrl\": true}}");
    };
    EXPECT_TRUE(read("{}").ZoneCap.present);
    EXPECT_FALSE(read("null").ZoneCap.present);
    const auto broken = read(R"({"isSptBypass": true, "isSptBypassBatch": "yes"})");
    EXPECT_TRUE(broken.ZoneCap.isSptBypass);
    EXPECT_FALSE(broken.ZoneCap.present || broken.isSptOutputsCtrl);
}

TEST(JsonRecordTest, WritesAnItemOverTheEntryItWasReadFromAndKeepsTheKindsOfValues)
{
    const char* text = R"({"List": [{"Zone": {"id": 1, "zoneName": 11, "own": "a"}},
                                    {"Zone": {"id": 2.0, "zoneName": "b", "own": "b"}, "more": 1},
                                    {"Zone": {"id": 3, "enable": 1, "own": "c"}}]})";
    const auto written = [](const AlarmHostZoneConfig& config) {
        return Parsed(config.Make())["List"];
    };
    AlarmHostZoneConfig config(text);
    EXPECT_EQ(written(config)[0]["Zone"]["zoneName"], Json::Value(11));
    EXPECT_EQ(written(config)[2]["Zone"]["enable"], Json::Value(1));
    config.zones[0].zoneName = "12";
    EXPECT_EQ(written(config)[0]["Zone"]["zoneName"], Json::Value("12"));

    config.zones.erase(config.zones.begin());
    std::swap(config.zones[0], config.zones[1]);
    config.zones.push_back({});
    config.zones.push_back({});
    const Json::Value list = written(config);
    EXPECT_EQ(list.size(), 4U);
    EXPECT_EQ(list[0]["Zone"]["own"], Json::Value("c"));
    EXPECT_EQ(list[1]["Zone"]["own"], Json::Value("b"));
    EXPECT_EQ(list[1]["more"], Json::Value(1));
    EXPECT_FALSE(list[2]["Zone"].isMember("own") || list[3]["Zone"].isMember("own"));

    AlarmHostZoneConfig renumbered(text);
    renumbered.zones[1].id = 9;
    EXPECT_FALSE(written(renumbered)[1]["Zone"].isMember("own")) << "zone 9 is not zone 2";
    EXPECT_EQ(written(renumbered)[2]["Zone"]["own"], Json::Value("c"));
}

TEST(JsonRecordTest, MatchesItemsWithoutANumberByPositionAmongThemselves)
{
    const char* text = R"({"List": [{"Output": {"delay": 1}}, {"Output": {"id": 5, "delay": 2}},
                                    {"Output": {"delay": 3}}]})";
    const auto delays = [](const TriggerListConfig& config) {
        std::vector<int> read;
        const Json::Value written = Parsed(config.Make());
        for (const Json::Value& entry : written["List"]) {
            read.push_back(entry["Output"].get("delay", 0).asInt());
        }
        return read;
    };
    TriggerListConfig config(text);
    EXPECT_THAT(delays(config), ElementsAre(1, 2, 3));
    config.outputs.erase(config.outputs.begin() + 1);
    config.outputs.push_back({});
    EXPECT_THAT(delays(config), ElementsAre(1, 3, 0));

    // As many entries as would take minutes if each item were compared with all of them.
    std::string nulls = "null";
    for (int i = 0; i < 20000; ++i) {
        nulls += ",null";
    }
    const TriggerListConfig many("{\"List\": [" + nulls + "]}");
    EXPECT_EQ(delays(many).size(), 20001U);
}

TEST(JsonRecordTest, SendsABypassAsItsZoneAlone)
{
    const AlarmHostBypassCfg cfg(R"({"zone": 5, "x": 1})");
    EXPECT_EQ(Parsed(cfg.Make()), Parsed(R"({"zone": "5"})"));
    EXPECT_EQ(cfg.CreatJsonParser(), cfg.Make());
}

TEST(JsonRecordTest, ReadsAStatusAfterAResetUpToTheFirstMemberOfTheWrongKind)
{
    const std::string whole = R"({"requestURL": "/TARN", "statusCode": 4, "statusString": "s",
                                  "subStatusCode": "word", "errorCode": -5, "errorMsg": "m"})";
    struct Case
    {
        std::string text;
        JsonStatus read;
    };
    const auto status = [](std::string url, int code, std::string text, std::string sub, int error,
                           std::string message) {
        JsonStatus made;
        made.requestURL = std::move(url);
        made.statusCode = code;
        made.statusString = std::move(text);
        made.subStatusCode = std::move(sub);
        made.errorCode = error;
        made.errorMsg = std::move(message);
        return made;
    };
    const std::vector<Case> cases{
        {whole, status("/TARN", 4, "s", "word", -5, "m")},
        {R"({"statusCode": 1, "statusString": "OK"})", status("", 1, "OK", "", 0, "")},
        {R"({"requestURL": "/u", "statusCode": "x", "errorCode": 7})",
         status("/u", 0, "", "", 0, "")},
        {R"({"statusCode": true, "subStatusCode": 12})", status("", 1, "", "12", 0, "")},
        {R"({"requestURL": {}, "statusCode": 4})", {}},
        {"", {}},
        {"[4]", {}},
        {"not JSON", {}},
    };
    for (const Case& each : cases) {
        JsonStatus used(whole);
        used.Parse(each.text);
        EXPECT_TRUE(SameFields(used, each.read)) << each.text;
        EXPECT_TRUE(SameFields(JsonStatus(each.text), each.read)) << each.text;
        EXPECT_EQ(used.Make(), "");
    }
}

TEST(JsonRecordTest, ListsErrorsByNumberAloneOneAnswerAfterTheOther)
{
    struct Case
    {
        const char* text;
        std::vector<std::string> ids;
    };
    const std::vector<Case> cases{
        {R"({"ErrorList": [{"id": -3, "subStatusCode": "busy"}, {}]})", {"-3", "0"}},
        {R"({"ErrorList": [null, {"id": 2}]})", {"2"}},
        {R"({"ErrorList": [{"id": 1}, {"id": 2, "subStatusCode": []}, {"id": 3}]})", {"1"}},
        {R"({"ErrorList": [{"id": 1}, {"id": "two"}]})", {"1"}},
        {R"({"ErrorList": [{"id": 1}, 5]})", {"1"}},
        {R"({"ErrorList": {"id": 1}})", {}},
        {R"({"ErrorList": "none"})", {}},
        {"{}", {}},
        {"", {}},
    };
    for (const Case& each : cases) {
        JsonErrorStatusList list(std::string{each.text});
        list.Parse(each.text);
        std::vector<std::string> twice = each.ids;
        twice.insert(twice.end(), each.ids.begin(), each.ids.end());
        std::vector<std::string> ids;
        for (const JsonErrorStatus& status : list.errorList) {
            ids.push_back(status.id);
            EXPECT_EQ(status.subStatusCode, "");
        }
        EXPECT_EQ(ids, twice) << each.text;
    }
    EXPECT_EQ(JsonErrorStatus().id, "");
    EXPECT_EQ(JsonErrorStatus(Json::Value()).id, "");
    EXPECT_THROW(JsonErrorStatus(Json::Value("text")), Json::LogicError);
}

TEST(JsonRecordTest, MakesTheBodiesThatArmAndDisarmOfTheArgument)
{
    OperateSubSystemsInfo info;
    info.subSystems.resize(2);
    info.subSystems[0].id = 4;
    info.subSystems[0].armType = "away";
    info.subSystems[0].devIndex = "d";
    EXPECT_EQ(Parsed(OperateSubSystemsInfo().CreatArmJsonParser(info)), Parsed(R"({"SubSysList": [
                  {"SubSys": {"id": 4, "armType": "away", "devIndex": "d"}},
                  {"SubSys": {"id": 0, "armType": "", "devIndex": ""}}]})"));
    EXPECT_EQ(
        Parsed(OperateSubSystemsInfo().CreatDisarmAndClearAlarmJsonParser(info)),
        Parsed(
            R"({"SubSysList": [{"SubSys": {"id": 4, "devIndex": "d"}}, {"SubSys": {"id": 0, "devIndex": ""}}]})"));
    EXPECT_EQ(Parsed(info.CreatArmJsonParser({})), Parsed(R"({"SubSysList": []})"));
}

TEST(JsonRecordTest, TellsOperationsThatMemoryRanOutWhateverIsThrownForIt)
{
    const auto read = [](const char* what) {
        json::WithRoot("{}", [what](const Json::Value&) { Json::throwRuntimeError(what); });
    };
    const char* out =
        "in Json::Value::duplicateStringValue(): Failed to allocate string value buffer";
    EXPECT_NO_THROW(read(out));
    const ThrowScope scope;
    EXPECT_THROW(read(out), std::bad_alloc);
    EXPECT_NO_THROW(read("Exceeded stackLimit in readValue()."));
}

}  // namespace
