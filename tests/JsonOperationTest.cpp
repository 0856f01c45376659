// Every operation of the JSON flavour over a scripted SDK: lines, bodies, threads.
// SPDX-License-Identifier: Apache-2.0
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/private/query/JsonOperation.h"
#include "support/JsonOperations.h"
#include "support/LogCapture.h"

namespace
{

using namespace CapabilitySet;
using namespace TestSupport;
using testing::IsEmpty;

/// Runs a check on every operation, each with a fresh SDK that answers `steps`.
template <class Check>
void ForEachOperation(const std::vector<SdkStep>& steps, Check check)
{
    ForEachRow(JsonOperations(), steps, check);
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
    for (const Case& each : cases) {
        EXPECT_EQ(query::FormattedCopy(each.text), each.copy) << each.text;
    }
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
            for (unsigned i = 0; i < 2 * rows.size(); ++i) {
                rows[(i + 7 * thread) % rows.size()].ask("{}");
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(log.Messages(), testing::Contains("NET_ORB_STDXMLConfig failed, [50]-[9]."));
}

}  // namespace
