// Every query operation over a scripted SDK: requests, model codes, traces, threads.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/QueryFrame.h"

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

TEST(QueryFrameTest, GrowsTheBufferByTheStepUpToTheLimit)
{
    ForEachOperation({{.error = 43}}, [](const OperationRow& row, const ScriptedSdk& sdk) {
        const Answered answered = row.ask();
        EXPECT_FALSE(answered.result);
        EXPECT_EQ(answered.err, Reported(row, 43));
        std::vector<unsigned> expected;
        for (unsigned size = row.policy.start; size <= row.policy.limit; size += row.policy.step) {
            expected.push_back(size);
        }
        std::vector<unsigned> sizes;
        for (const SdkCall& call : Requests(sdk)) {
            sizes.push_back(call.size);
        }
        EXPECT_EQ(sizes, expected);
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
    for (int code = 0; code < 0x20 * 0x200; ++code) {
        known += comm_method::isDeviceModelError(code / 0x200 * 0x100000 + code % 0x200) ? 1 : 0;
    }
    EXPECT_EQ(known, 195);
    for (const Case& each : cases) {
        sdk.modelCode = each.model;
        unsigned err = 0;
        CapabilitySet::BasicCapability record;
        CapabilitySet::BasicCapability::GetBasicCapability(record, err, kUser);
        EXPECT_EQ(LastError(), each.isKnown ? std::pair(72, each.model) : std::pair(50, 9))
            << std::hex << each.model;
    }
}

TEST(QueryFrameTest, ServesManyThreadsAtOnce)
{
    LogCapture log;
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.keepsCalls = false;
    sdk.steps = {{.answer = "<a><b c='1'>x</b></a>"}, {.error = 1000}, {.answer = "no document"}};
    for (const OperationRow& row : Operations()) {
        if (row.code == 530 || row.code == 2222) {
            sdk.texts[row.code] = row.document;
        }
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
    for (std::thread& thread : threads) {
        thread.join();
    }
}

}  // namespace
