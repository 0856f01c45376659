// Every query operation over a scripted SDK: requests, growing buffers, errors, log lines.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/QueryFrame.h"

#include <algorithm>
#include <string>
#include <thread>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/BasicCapability.h"
#include "CommonMethod/SDKErrorCode/SDKErrorCode.h"
#include "support/LogCapture.h"
#include "support/Operations.h"

namespace
{

using namespace TestSupport;
using testing::ElementsAre;
using testing::IsEmpty;

std::string CallOf(SdkCall::Kind kind)
{
    switch (kind) {
        case SdkCall::DeviceAbility:
            return "NET_ORB_GetDeviceAbility";
        case SdkCall::StandardAbility:
            return "NET_ORB_GetSTDAbility";
        case SdkCall::Transparent:
            return "NET_ORB_STDXMLConfig";
        case SdkCall::Channel:
            return "NET_ORB_SDKChannelToTARN";
    }
    return {};
}

/// Runs a check on every operation, each with a fresh SDK that answers `steps`.
template <class Check>
void ForEachOperation(const std::vector<SdkStep>& steps, Check check)
{
    ForEachRow(Operations(), steps, check);
}

/// The calls of the operation's own kind.
std::vector<SdkCall> Requests(const ScriptedSdk& sdk)
{
    std::vector<SdkCall> requests = sdk.calls;
    std::erase_if(requests, [](const SdkCall& call) { return call.kind == SdkCall::Channel; });
    return requests;
}

unsigned Reported(const OperationRow& row, unsigned err)
{
    return row.errByValue ? 77 : err;
}

TEST(QueryFrameTest, SendsExactlyTheRequestOfEachOperation)
{
    ForEachOperation({}, [](const OperationRow& row, ScriptedSdk& sdk) {
        sdk.steps = {{.answer = row.document, .returnedSize = 4000000000U}};
        const Answered answered = row.ask();
        EXPECT_TRUE(answered.result);
        EXPECT_TRUE(answered.isRead);
        EXPECT_EQ(answered.err, Reported(row, 0));
        ASSERT_EQ(Requests(sdk).size(), 1U);
        const SdkCall call = Requests(sdk).front();
        EXPECT_EQ(call.kind, row.kind);
        EXPECT_EQ(call.userID, kUser);
        EXPECT_EQ(call.code, row.code);
        const bool isLine = row.kind == SdkCall::Transparent;
        EXPECT_EQ(isLine ? call.line : call.input, row.request);
        EXPECT_EQ(call.hasInput, !isLine && !row.request.empty());
        EXPECT_EQ(call.size, row.policy.start);
        EXPECT_TRUE(call.isZeroed && call.isWellFilled);
        EXPECT_EQ(call.statusSize + call.timeout + static_cast<unsigned>(call.flag), 0U);
        EXPECT_EQ(LastError(), kUntouched) << "a success sets no last error";
    });
}

TEST(QueryFrameTest, GrowsTheBufferByThePolicyOfEachOperationAndGivesUpAtItsLimit)
{
    LogCapture log;
    // Each attempt dirties the buffer: the next one must find it clean.
    ForEachOperation(
        {{.error = 43, .answer = "<dirt/>"}}, [&](const OperationRow& row, ScriptedSdk& sdk) {
            log.Clear();
            const Answered answered = row.ask();
            EXPECT_FALSE(answered.result);
            EXPECT_EQ(answered.err, Reported(row, 43));
            EXPECT_TRUE(answered.isAtDefaults);
            EXPECT_EQ(LastError(), kUntouched) << "a reached limit leaves the last error alone";
            const std::vector<SdkCall> requests = Requests(sdk);
            ASSERT_EQ(requests.size(), (row.policy.limit - row.policy.start) / row.policy.step + 1);
            for (std::size_t i = 0; i < requests.size(); ++i) {
                ASSERT_EQ(requests[i].size, row.policy.start + i * row.policy.step);
                ASSERT_TRUE(requests[i].isZeroed) << "attempt " << i;
            }
            const std::string trace = row.limitTrace;
            const std::size_t name = trace.find(']') + 1;
            ASSERT_FALSE(log.Messages("Vsk").empty());
            EXPECT_EQ(log.Messages("Vsk").back(),
                      trace.substr(0, name) + "failure to CCapabilityApp::" + trace.substr(name) +
                          ", userID = [5], error code = [43]");
            EXPECT_EQ(log.Messages(), row.limitLine == nullptr
                                          ? std::vector<std::string>()
                                          : std::vector<std::string>{row.limitLine});
        });
}

TEST(QueryFrameTest, GrowsOn1001AndTurns1000Into23OnlyWhereTheOperationDoes)
{
    ForEachOperation(
        {{.error = 1001}, {.error = 1000}}, [](const OperationRow& row, ScriptedSdk& sdk) {
            const Answered answered = row.ask();
            EXPECT_FALSE(answered.result);
            EXPECT_TRUE(answered.isAtDefaults);
            EXPECT_EQ(Requests(sdk).size(), row.policy.growsOn1001 ? 2U : 1U);
            const unsigned last = row.policy.maps1000 ? 23 : 1000;
            EXPECT_EQ(answered.err, Reported(row, row.policy.growsOn1001 ? last : 1001));
        });
    ForEachOperation({{.error = 1000}}, [](const OperationRow& row, ScriptedSdk& sdk) {
        EXPECT_EQ(row.ask().err, Reported(row, row.policy.maps1000 ? 23 : 1000));
        EXPECT_EQ(Requests(sdk).size(), 1U);
        EXPECT_EQ(LastError(), std::pair(50, 1000));
    });
}

TEST(QueryFrameTest, TellsAnyOtherErrorUnchangedWithItsLinesAndTheirPlace)
{
    LogCapture log;
    ForEachOperation({{.error = 7}}, [&](const OperationRow& row, ScriptedSdk& sdk) {
        sdk.modelCode = 0x700005;
        log.Clear();
        const Answered answered = row.ask();
        EXPECT_FALSE(answered.result);
        EXPECT_TRUE(answered.isAtDefaults);
        EXPECT_EQ(answered.err, Reported(row, 7));
        EXPECT_EQ(LastError(), std::pair(72, 0x700005));
        const std::string call = row.failedCall == nullptr ? CallOf(row.kind) : row.failedCall;
        EXPECT_THAT(log.Messages(),
                    ElementsAre("NET_ORB_GetLastError: [7]",
                                "NET_ORB_GetLastErrorModelCode, ErrModelCode:[0x700005], "
                                "MErrDevSelfEx:[0x7].",
                                call + " failed, [72]-[7340037]."));
        const LogLine line = log.Lines().back();
        EXPECT_EQ(line.level, "ERROR");
        EXPECT_EQ(line.file, std::string("Common/CapabilitySet/") + row.file);
        EXPECT_EQ(line.function, std::string("CapabilitySet::") + row.name);
        EXPECT_GT(line.line, 0);
        EXPECT_EQ(log.Lines().front().function, "comm_method::getLastSDKError");
    });
}

TEST(QueryFrameTest, ChecksTheRecordsFlagOnlyWhereTheOperationDoes)
{
    ForEachOperation({{.answer = "<foreign/>"}}, [](const OperationRow& row, ScriptedSdk&) {
        const Answered answered = row.ask();
        EXPECT_EQ(answered.result, !row.needsFlag);
        EXPECT_EQ(answered.err, Reported(row, row.needsFlag ? 23 : 0));
        EXPECT_TRUE(answered.isAtDefaults);
    });
}

TEST(QueryFrameTest, BoundsAnAnswerThatFillsTheWholeBuffer)
{
    ForEachOperation({}, [](const OperationRow& row, ScriptedSdk& sdk) {
        sdk.steps = {{.error = 43}, {.answer = row.document, .fills = true}};
        EXPECT_EQ(row.ask().result, !row.needsFlag) << "trailing text makes it no document";
    });
}

TEST(QueryFrameTest, TracesStartAndFinishOfTheBasicCapabilityAlone)
{
    LogCapture log;
    ForEachOperation({{.error = 43}, {.answer = "<a/>"}}, [&](const OperationRow& row,
                                                              ScriptedSdk&) {
        log.Clear();
        row.ask();
        if (row.name != std::string("BasicCapability::GetBasicCapability")) {
            EXPECT_THAT(log.Messages("Vsk"), IsEmpty());
            return;
        }
        EXPECT_THAT(log.Messages("Vsk"), ElementsAre("[AbilityTime]Start to get BasicCapability",
                                                     "[AbilityTime]Start to get BasicCapability",
                                                     "[AbilityTime]Finish to get BasicCapability"));
        EXPECT_EQ(log.Lines("Vsk").front().level, "DEBUG");
    });
}

TEST(QueryFrameTest, SendsNothingForAChannelThatCannotBeConverted)
{
    LogCapture log;
    ForEachOperation({}, [&](const OperationRow& row, ScriptedSdk& sdk) {
        if (row.name != std::string("AlarmAbility::GetAlarmAbility"))
            return;
        sdk.channelError = 1000;
        const Answered answered = row.ask();
        EXPECT_FALSE(answered.result);
        EXPECT_EQ(answered.err, 23U);
        EXPECT_TRUE(answered.isAtDefaults);
        EXPECT_THAT(Requests(sdk), IsEmpty());
        EXPECT_EQ(log.Messages().back(), "NET_ORB_SDKChannelToTARN failed, [50]-[1000].");
        EXPECT_EQ(LastError(), std::pair(50, 1000));
    });
}

TEST(QueryFrameTest, TellsKnownModelCodesFromTheGapsBetweenThem)
{
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.steps = {{.error = 9}};
    struct Case
    {
        int model;
        bool isKnown;
    };
    const std::vector<Case> cases{
        {0x700005, true},  {0x700006, false},  {0x700007, true},  {0x700014, true},
        {0x700015, false}, {0x600004, false},  {0x600006, false}, {0x600010, true},
        {0x500030, true},  {0x500031, false},  {0x50003D, true},  {0x50003E, false},
        {0x50000A, false}, {0x50007F, false},  {0x500084, false}, {0x100000, false},
        {0x100105, true},  {0x100106, false},  {0x100008, false}, {0x20000E, true},
        {0x40001A, true},  {0x40001B, false},  {0x800001, true},  {0x800002, false},
        {0xF00011, true},  {0xF00012, false},  {0x1100002, true}, {0x1100003, false},
        {0x1400009, true}, {0x140000A, false}, {0x0, false},      {-1, false},
    };
    int known = 0;
    for (int code = 0; code < 0x20 * 0x200; ++code)
        known += comm_method::isDeviceModelError(code / 0x200 * 0x100000 + code % 0x200) ? 1 : 0;
    EXPECT_EQ(known, 195);
    for (const Case& each : cases) {
        sdk.modelCode = each.model;
        unsigned err = 0;
        CapabilitySet::BasicCapability record;
        CapabilitySet::BasicCapability::GetBasicCapability(record, err, kUser);
        EXPECT_EQ(LastError(), each.isKnown ? std::pair(72, each.model) : std::pair(50, 9))
            << std::hex << each.model;
    }
    sdk.modelCode.reset();
    int module = 0;
    int code = 0;
    comm_method::getLastSDKError(module, code);
    EXPECT_EQ(std::pair(module, code), std::pair(50, 9)) << "the SDK left its outputs alone";
}

TEST(QueryFrameTest, ServesManyThreadsAtOnce)
{
    LogCapture log;
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.keepsCalls = false;
    sdk.steps = {{.answer = "<a><b c='1'>x</b></a>"}, {.error = 1000}, {.answer = "no document"}};
    for (const OperationRow& row : Operations()) {
        if (row.code == 530 || row.code == 2222)
            sdk.texts[row.code] = row.document;
    }
    std::vector<std::thread> threads;
    for (unsigned thread = 0; thread < 4; ++thread) {
        threads.emplace_back([thread] {
            for (unsigned i = 0; i < 3 * Operations().size(); ++i) {
                const OperationRow& row = Operations()[(i + 7 * thread) % Operations().size()];
                const Answered answered = row.ask();
                if (row.code == 530 || row.code == 2222) {
                    EXPECT_TRUE(answered.result && answered.isRead) << row.name;
                }
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
}

}  // namespace
