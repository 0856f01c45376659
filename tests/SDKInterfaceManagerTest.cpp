// Tests of the manager of requests with any method, over a scripted SDK.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"

#include <array>
#include <climits>
#include <functional>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/AllocationFaults.h"
#include "support/ScriptedSdk.h"

using CapabilitySet::ParseXmlHelper::InterfaceRet;
using CapabilitySet::ParseXmlHelper::SDKInterfaceManager;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::AllocationFault;
using TestSupport::ScriptedSdk;
using TestSupport::SdkCall;
using TestSupport::SdkStep;

namespace
{

/// An SDK that answers these steps.
ScriptedSdk& Script(std::vector<SdkStep> steps)
{
    ScriptedSdk& sdk = ScriptedSdk::Fresh();
    sdk.steps = std::move(steps);
    return sdk;
}

constexpr InterfaceRet kDone{true, 0, -1};

class SDKInterfaceManagerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        ScriptedSdk::Fresh();
        manager.setSDKErrorProcessCallBack([this](int error) { sdkErrors.push_back(error); });
        manager.setXmlErrorProcessCallBack([this](int error) { xmlErrors.push_back(error); });
        manager.setXmlErrorTransCallBack({});
    }
    void TearDown() override
    {
        manager.setSDKErrorProcessCallBack({});
        manager.setXmlErrorProcessCallBack({});
        manager.setXmlErrorTransCallBack({});
    }

    InterfaceRet Get(const std::string& line = "GET /TARN/x\r\n")
    {
        return manager.TransparentRequsetGET(3, line, answer, status, 0, false);
    }

    ScriptedSdk& sdk = ScriptedSdk::Instance();
    SDKInterfaceManager& manager = SDKInterfaceManager::instance();
    std::string answer;
    std::string status;
    std::vector<int> sdkErrors;
    std::vector<int> xmlErrors;
};

using Manager = SDKInterfaceManagerTest;

TEST_F(Manager, InvalidUserTouchesNothing)
{
    answer = "before";
    EXPECT_EQ(manager.TransparentRequset(-1, "GET /", "", answer, status, 0, false),
              (InterfaceRet{false, 1, -1}));
    EXPECT_EQ(answer, "before");
    EXPECT_THAT(sdk.calls, IsEmpty());
    EXPECT_THAT(sdkErrors, IsEmpty());
}

TEST_F(Manager, OnlyABarePrefixHasAUrlType)
{
    const std::pair<std::string, SDKInterfaceManager::URLType> table[] = {
        {"GET /", SDKInterfaceManager::URL_GET},
        {"PUT /", SDKInterfaceManager::URL_PUT},
        {"POST /", SDKInterfaceManager::URL_POST},
        {"DELETE /", SDKInterfaceManager::URL_DELETE},
        {std::string("PUT /\0TARN", 10), SDKInterfaceManager::URL_PUT},
        {"PUT /TARN/VideoIntercom/SendCardCfg\r\n", SDKInterfaceManager::URL_UNKNOWN},
        {"GET /\r\n", SDKInterfaceManager::URL_UNKNOWN},
        {"put /", SDKInterfaceManager::URL_UNKNOWN},
        {"PUT ", SDKInterfaceManager::URL_UNKNOWN},
        {"", SDKInterfaceManager::URL_UNKNOWN}};
    for (const auto& [line, type] : table) {
        EXPECT_EQ(manager.RequestUrl2URLType(line), type) << line;
    }
}

TEST_F(Manager, EachWrapperPassesItsOwnBuffersAndTheLineAsItStands)
{
    const std::string line = "no method, 50% \r\n";
    status = "before";
    struct Row
    {
        const char* name;
        std::function<InterfaceRet()> send;
        bool hasBody;
        bool hasAnswer;
    };
    const Row rows[] = {
        {"TransparentRequset",
         [&] { return manager.TransparentRequset(3, line, "b", answer, status, 7, true); }, true,
         true},
        {"GET", [&] { return manager.TransparentRequsetGET(3, line, answer, status, 7, true); },
         false, true},
        {"PUT", [&] { return manager.TransparentRequsetPUT(3, line, "b", status, 7, true); }, true,
         false},
        {"POSTNew",
         [&] { return manager.TransparentRequsetPOSTNew(3, line, "b", status, 7, true); }, true,
         false},
        {"POSTInq",
         [&] { return manager.TransparentRequsetPOSTInq(3, line, "b", answer, status, 7, true); },
         true, true},
        {"DEL", [&] { return manager.TransparentRequsetDEL(3, line, status, "b", 7, true); }, true,
         false}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ScriptedSdk::Fresh();
        EXPECT_EQ(row.send(), kDone);
        ASSERT_EQ(sdk.calls.size(), 1U);
        const SdkCall& seen = sdk.calls.front();
        EXPECT_EQ(seen.line, line);
        EXPECT_EQ(seen.hasInput, row.hasBody);
        EXPECT_EQ(seen.input, row.hasBody ? "b" : "");
        EXPECT_EQ(seen.size, row.hasAnswer ? 2048U : 0U);
        EXPECT_EQ(seen.statusSize, 512U);
        EXPECT_EQ(seen.timeout, 7U);
        EXPECT_EQ(seen.flag, 1);
        EXPECT_TRUE(seen.isZeroed && seen.isWellFilled);
        EXPECT_EQ(status, "before");
    }
}

TEST_F(Manager, TimeOutBeyondTheSdksRangeIsItsLongest)
{
    manager.TransparentRequsetGET(0, "GET /a", answer, status, UINT_MAX + 1UL, false);
    ASSERT_EQ(sdk.calls.size(), 1U) << "0 is a user";
    EXPECT_EQ(sdk.calls.front().timeout, UINT_MAX);
    EXPECT_EQ(sdk.calls.front().flag, 0);
}

TEST_F(Manager, TextThatIsExactlyZeroIsLeftAlone)
{
    Script({{.answer = "answer", .status = "status", .returnedSize = 6}});
    answer = status = "0";
    EXPECT_EQ(Get(), kDone);
    EXPECT_EQ(answer, "0");
    EXPECT_EQ(status, "0");
    answer = status = "00";
    EXPECT_EQ(Get(), kDone);
    EXPECT_EQ(answer, "answer");
    EXPECT_EQ(status, "status");
}

TEST_F(Manager, TheBufferOfTheLinesTypeGrowsToTheSizeAskedFor)
{
    struct Row
    {
        const char* line;
        unsigned size;
        unsigned statusSize;
    };
    // A whole line has no type: even of a PUT the answer's buffer grows.
    const Row rows[] = {{"GET /TARN/x\r\n", 5000, 512},
                        {"PUT /TARN/x\r\n", 5000, 512},
                        {"POST /", 5000, 512},
                        {"PUT /", 2048, 5000}};
    for (const Row& row : rows) {
        for (const unsigned error : {43U, 1001U}) {
            Script({{.error = error, .answer = "partial", .returnedSize = 5000},
                    {.answer = "whole", .returnedSize = 5}});
            EXPECT_EQ(Get(row.line), kDone) << row.line;
            ASSERT_EQ(sdk.calls.size(), 2U) << row.line;
            EXPECT_EQ(sdk.calls[1].size, row.size) << row.line;
            EXPECT_EQ(sdk.calls[1].statusSize, row.statusSize) << row.line;
            EXPECT_EQ(answer, "whole");
        }
    }
    EXPECT_THAT(sdkErrors, IsEmpty());
}

TEST_F(Manager, BufferThatCannotGrowIsExhausted)
{
    const std::pair<const char*, unsigned> rows[] = {
        {"GET /x", 2048}, {"GET /x", 0}, {"PUT /x", 1000}, {"PUT /", 512}};
    for (const auto& [line, returned] : rows) {
        sdkErrors.clear();
        Script({{.error = 1001, .returnedSize = returned}});
        EXPECT_EQ(Get(line), (InterfaceRet{false, 2, 43})) << line;
        EXPECT_EQ(sdk.calls.size(), 1U);
        EXPECT_THAT(sdkErrors, ElementsAre(43));
    }
    // The growing ends when the SDK asks for the same size again.
    Script({{.error = 43, .returnedSize = 3000}, {.error = 43, .returnedSize = 4000}});
    EXPECT_EQ(Get(), (InterfaceRet{false, 2, 43}));
    EXPECT_EQ(sdk.calls.size(), 3U);
    EXPECT_EQ(answer.size(), 4000U);
}

TEST_F(Manager, DeviceThatInsistsOnAnsweringGetsABufferOfOurOwn)
{
    answer = "0";
    Script({{.error = 43, .returnedSize = 3000}, {.answer = "unwanted", .returnedSize = 8}});
    EXPECT_EQ(Get(), kDone);
    EXPECT_EQ(sdk.calls[0].size, 0U);
    EXPECT_EQ(sdk.calls[1].size, 3000U);
    EXPECT_EQ(answer, "0");
    Script({{.error = 43, .returnedSize = 2048}});
    EXPECT_EQ(Get(), (InterfaceRet{false, 2, 43}));
}

TEST_F(Manager, RefusalsAreReadInOrderAndTranslated)
{
    struct Row
    {
        const char* document;
        unsigned returned;
        int code;
        const char* subCode;
    };
    const Row rows[] = {
        {"<ResponseStatus version=\"2.0\" xmlns=\"urn:x\"><requestURL>/x</requestURL>"
         "<statusCode> 4x</statusCode><statusString>s</statusString>"
         "<subStatusCode>notSupport</subStatusCode><ID>1</ID></ResponseStatus>",
         UINT_MAX, 4, "notSupport"},
        {"<ResponseStatus><subStatusCode>early</subStatusCode><statusCode>4</statusCode>"
         "</ResponseStatus>",
         500, 4, ""},
        {"<ResponseStatus><subStatusCode>alone</subStatusCode></ResponseStatus>", 500, 0, "alone"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.document);
        std::pair<int, std::string> translated;
        manager.setXmlErrorTransCallBack([&](int code, const std::string& subCode) {
            translated = {code, subCode};
            return 4711;
        });
        xmlErrors.clear();
        // A status document counts before the error number, even that of a small buffer.
        Script({{.error = 43, .status = row.document, .returnedSize = row.returned}});
        EXPECT_EQ(Get(), (InterfaceRet{false, 3, 4711}));
        EXPECT_EQ(translated, std::pair(row.code, std::string(row.subCode)));
        EXPECT_THAT(xmlErrors, ElementsAre(4711));
        EXPECT_EQ(sdk.calls.size(), 1U);
    }
    EXPECT_THAT(sdkErrors, IsEmpty());
}

TEST_F(Manager, FailuresWithoutCallBacksAreStillFailures)
{
    manager.setSDKErrorProcessCallBack({});
    Script({{.error = 999}});
    EXPECT_EQ(Get(), (InterfaceRet{false, 2, 999}));
    Script({{.error = 7, .status = "refused", .returnedSize = 7}});
    EXPECT_EQ(Get(), (InterfaceRet{false, 3, -1}));
    EXPECT_THAT(xmlErrors, ElementsAre(-1));
    manager.setXmlErrorProcessCallBack({});
    EXPECT_EQ(Get(), (InterfaceRet{false, 3, -1}));
}

TEST_F(Manager, OneTextMayHoldTheRequestAndTakeTheAnswer)
{
    std::string text = "a body that does not fit a short string";
    const std::string body = text;
    Script({{.error = 43, .returnedSize = 9000}, {.answer = "answer", .returnedSize = 6}});
    EXPECT_EQ(manager.TransparentRequsetPOSTInq(3, text, text, text, status, 0, false), kDone);
    ASSERT_EQ(sdk.calls.size(), 2U);
    EXPECT_EQ(sdk.calls[1].input, body);
    EXPECT_EQ(sdk.calls[1].line, body);
    EXPECT_EQ(text, "answer");
}

TEST_F(Manager, FailingMemoryIsAnErrorAndNeverAHalfAnswer)
{
    const std::string line = "GET /TARN/a/line/that/is/longer/than/any/short/string\r\n";
    const auto ask = [&] {
        {
            const TestSupport::NoAllocationFaults pause;
            Script({{.error = 43, .returnedSize = 5000}, {.answer = "whole", .returnedSize = 5}});
            sdk.keepsCalls = false;
            answer = "an answer from before, long enough for memory of its own";
        }
        return Get(line);
    };
    ask();
    TestSupport::FailEachAllocation(ask, [&](const InterfaceRet& result, bool struck) {
        EXPECT_TRUE(result == kDone || (struck && result == (InterfaceRet{false, 2, 23})));
        EXPECT_TRUE(!result.success || answer == "whole");
    });
}

TEST_F(Manager, CallBackForWhichThereIsNoMemoryIsNotInstalledAndNothingIsThrown)
{
    Script({{.error = 7}});
    const std::array<long, 8> large{};  // more than a function object holds in place
    const std::function<void(int)> other = [large](int) { FAIL() << large.size(); };
    {
        const AllocationFault fault(AllocationFault::New, 1);
        manager.setSDKErrorProcessCallBack(other);
        EXPECT_TRUE(AllocationFault::Struck());
    }
    Get();
    EXPECT_THAT(sdkErrors, ElementsAre(7));
}

}  // namespace
