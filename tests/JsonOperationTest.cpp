// Every operation of the JSON flavour over a scripted SDK: lines, bodies, errors, log lines.
// SPDX-License-Identifier: Apache-2.0
#include <cstring>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <json/reader.h>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/private/JsonOperation.h"
#include "CommonMethod/SDKErrorCode/SDKErrorCode.h"
#include "support/JsonOperations.h"
#include "support/LogCapture.h"

namespace
{

using namespace CapabilitySet;
using namespace TestSupport;
using testing::ElementsAre;
using testing::IsEmpty;

/// Runs a check on every operation, each with a fresh SDK that answers `steps`.
template <class Check>
void ForEachOperation(const std::vector<SdkStep>& steps, Check check)
{
    ForEachRow(JsonOperations(), steps, check);
}

void ExpectFailure(const JsonOperationRow& row, const JsonAnswered& answered, unsigned err)
{
    EXPECT_FALSE(answered.result);
    EXPECT_EQ(answered.err, row.tellsError ? err : 77);
    EXPECT_EQ(answered.isAtDefaults, !row.keepsRecord);
    EXPECT_EQ(answered.isFilled, row.keepsRecord);
}

std::string Padded(std::string body)
{
    body.resize(8192);
    return body;
}

TEST(JsonOperationTest, SendsTheLineAndBodyOfEachOperationAndReadsTheAnswerToItsFirstNul)
{
    LogCapture log;
    ForEachOperation({}, [&](const JsonOperationRow& row, ScriptedSdk& sdk) {
        sdk.steps = {{.answer = row.answer + std::string("\0{", 2), .returnedSize = 4000000000U}};
        const JsonAnswered answered = row.ask(row.keepsRecord ? "" : row.answer);
        EXPECT_TRUE(answered.result);
        EXPECT_EQ(answered.err, row.tellsError ? 0 : 77);
        EXPECT_EQ(answered.isFilled, !row.keepsRecord) << "the answer, or one list after the other";
        EXPECT_FALSE(answered.isAtDefaults);
        ASSERT_EQ(sdk.calls.size(), row.convertsChannel ? 2U : 1U);
        EXPECT_EQ(sdk.calls.front().kind == SdkCall::Channel, row.convertsChannel);
        const SdkCall call = sdk.calls.back();
        EXPECT_EQ(call.kind, SdkCall::Transparent);
        EXPECT_EQ(call.userID, kUser);
        EXPECT_EQ(call.line, row.request);
        EXPECT_EQ(call.input, row.padsBody ? Padded(row.body) : row.body);
        EXPECT_EQ(call.timeout, row.timeout);
        EXPECT_EQ(call.size, 16384U);
        EXPECT_TRUE(call.isZeroed && call.isWellFilled);
        EXPECT_EQ(LastError(), kUntouched);
    });
    EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST(JsonOperationTest, GivesUpSilentlyAfterAThousandBuffersThatWereTooSmall)
{
    LogCapture log;
    ForEachOperation({{.error = 43, .answer = "{\"dirt\":"}},
                     [](const JsonOperationRow& row, ScriptedSdk& sdk) {
                         ExpectFailure(row, row.ask(row.answer), 43);
                         EXPECT_EQ(LastError(), kUntouched);
                         const std::size_t first = row.convertsChannel ? 1 : 0;
                         ASSERT_EQ(sdk.calls.size(), first + 1000);
                         for (std::size_t i = 0; i < 1000; ++i) {
                             ASSERT_EQ(sdk.calls[first + i].size, (i + 1) * 16384);
                             ASSERT_TRUE(sdk.calls[first + i].isZeroed) << "attempt " << i;
                         }
                     });
    EXPECT_THAT(log.Messages(), IsEmpty());
    EXPECT_THAT(log.Messages("Vsk"), IsEmpty());
}

TEST(JsonOperationTest, GrowsOn43AloneAndHandsEveryOtherErrorOnUnchanged)
{
    for (const unsigned error : {1001U, 1000U, 7U, 4000000000U}) {
        ForEachOperation({{.error = 43}, {.error = error}},
                         [&](const JsonOperationRow& row, ScriptedSdk& sdk) {
                             ExpectFailure(row, row.ask(row.answer), error);
                             EXPECT_EQ(sdk.calls.back().size, 32768U);
                             EXPECT_EQ(sdk.calls.size(), row.convertsChannel ? 3U : 2U);
                         });
    }
}

TEST(JsonOperationTest, TellsAFailureWithItsPlaceAndTheLastError)
{
    LogCapture log;
    ForEachOperation({{.error = 7}}, [&](const JsonOperationRow& row, ScriptedSdk& sdk) {
        sdk.modelCode = 0x700005;
        log.Clear();
        ExpectFailure(row, row.ask(row.answer), 7);
        if (row.onlyLine != nullptr) {
            EXPECT_THAT(log.Messages(), ElementsAre(row.onlyLine));
            EXPECT_EQ(LastError(), kUntouched);
        } else {
            EXPECT_THAT(log.Messages(),
                        ElementsAre("NET_ORB_GetLastError: [7]",
                                    "NET_ORB_GetLastErrorModelCode, ErrModelCode:[0x700005], "
                                    "MErrDevSelfEx:[0x7].",
                                    "NET_ORB_STDXMLConfig failed, [72]-[7340037]."));
            EXPECT_EQ(LastError(), std::pair(72, 0x700005));
        }
        const LogLine line = log.Lines().back();
        EXPECT_EQ(line.level, "ERROR");
        const std::string app(row.name, std::strchr(row.name, ':'));
        EXPECT_EQ(line.file, "Common/CapabilitySet/JsonTARN/" + app.substr(0, app.size() - 3) +
                                 "/" + app + ".cpp");
        EXPECT_EQ(line.function, std::string("CapabilitySet::") + row.name);
        EXPECT_GT(line.line, 0);
    });
}

TEST(JsonOperationTest, SendsNothingForAChannelThatCannotBeConverted)
{
    LogCapture log;
    ForEachOperation({}, [](const JsonOperationRow& row, ScriptedSdk& sdk) {
        if (!row.convertsChannel)
            return;
        sdk.channelError = 1000;
        ExpectFailure(row, row.ask(row.answer), 0);
        ASSERT_EQ(sdk.calls.size(), 1U);
        EXPECT_EQ(sdk.calls.front().code, 3U);
        EXPECT_EQ(LastError(), kUntouched);
    });
    EXPECT_THAT(log.Messages(), IsEmpty());
}

TEST(JsonOperationTest, SucceedsWithDefaultsWhateverTheDeviceAnswers)
{
    for (const char* answer : {"", "null", "[]", "5", "{}", "<Status/>", "{\"List\": [", "\xff"}) {
        ForEachOperation({{.answer = answer}}, [&](const JsonOperationRow& row, ScriptedSdk&) {
            const JsonAnswered answered = row.ask(row.answer);
            EXPECT_TRUE(answered.result) << answer;
            EXPECT_EQ(answered.err, row.tellsError ? 0 : 77);
            EXPECT_FALSE(answered.isFilled && !row.keepsRecord) << answer;
        });
    }
}

TEST(JsonOperationTest, SendsLinesAndBodiesOfAnyLengthWhole)
{
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    unsigned err = 0;
    JsonStatus status;
    const std::string start = "POST /TARN/SecurityCP/control/arm/<1>?ways=<";
    const std::string end = ">&format=json\r\n";
    for (const std::size_t length : {0U, 127U, 128U, 129U, 5000U}) {
        const std::string ways(length - std::min(length, start.size() + end.size()), 'w');
        EXPECT_TRUE(JsonConfigApp::SetDevArming(status, ways, 1, err, kUser));
        EXPECT_EQ(sdk.calls.back().line, start + ways + end);
    }
    JsonConfigApp::SetDevArming(status, std::string("a\0b", 3), 1, err, kUser);
    EXPECT_EQ(sdk.calls.back().line, start + "a") << "lines end at their first NUL";

    AlarmHostBypassCfg cfg;
    const std::size_t frame = cfg.Make().size();
    for (const std::size_t length :
         {frame, std::size_t{8190}, std::size_t{8191}, std::size_t{8192}, std::size_t{1000000}}) {
        cfg.zone.assign(length - frame, 'z');
        EXPECT_TRUE(JsonConfigApp::SetDevBypass(cfg, status, err, -1, kUser));
        std::string body = cfg.Make();
        ASSERT_EQ(body.size(), length);
        body.resize(std::max<std::size_t>(length + 1, 8192));
        EXPECT_EQ(sdk.calls.back().input, body);
    }
}

TEST(JsonOperationTest, LeavesOfConversionsWhatFormattingWithoutArgumentsWould)
{
    struct Case
    {
        std::string text;
        std::string copy;
    };
    const std::vector<Case> cases{
        {"", ""},
        {"plain", "plain"},
        {"%", ""},
        {"%%", "%"},
        {"%%%", "%"},
        {"%%%%", "%%"},
        {"%s", ""},
        {"%n", ""},
        {"a%nb%sc%d", "abc"},
        {"50% of", "50f"},
        {"%-+ #012.34lldx", "x"},
        {"%*.*f!", "!"},
        {"%1$s|", "|"},
        {"%hhn%Lf%zu%tx%ju", ""},
        {"%y", "y"},
        {"100%\n", "100\n"},
        {"%\xC3\xA9", "\xC3\xA9"},
        {std::string("a\0%s", 4), "a"},
        {"%-", "-"},
        {"%99999999999999d", ""},
        {"% %", "%"},
    };
    for (const Case& each : cases)
        EXPECT_EQ(query::FormattedCopy(each.text), each.copy) << each.text;
    const std::string signs(9000, '%');
    EXPECT_EQ(query::FormattedCopy(signs), std::string(4500, '%'));
}

TEST(JsonOperationTest, ServesManyThreadsAtOnce)
{
    LogCapture log;
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.keepsCalls = false;
    sdk.steps = {{.answer = R"({"List": [{"Zone": {"id": 1}}], "statusCode": 1})"}, {.error = 9}};
    std::vector<std::thread> threads;
    for (unsigned thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            const auto& rows = JsonOperations();
            for (unsigned i = 0; i < 2 * rows.size(); ++i)
                rows[(i + 7 * thread) % rows.size()].ask("{}");
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_THAT(log.Messages(), testing::Contains("NET_ORB_STDXMLConfig failed, [50]-[9]."));
}

}  // namespace
