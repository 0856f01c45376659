// Records fetched, searched and set through the process-wide manager, over a scripted SDK.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"

#include <functional>
#include <iostream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/private/xml/XmlWriting.h"
#include "support/AllocationFaults.h"
#include "support/LogCapture.h"
#include "support/RecordGenerator.h"
#include "support/ScriptedSdk.h"

namespace
{

using namespace CapabilitySet;
using ParseXmlHelper::InterfaceRet;
using ParseXmlHelper::SDKInterfaceManager;
using testing::ElementsAre;
using testing::IsEmpty;
using TestSupport::LogCapture;
using TestSupport::NoAllocationFaults;
using TestSupport::RecordGenerator;
using TestSupport::ScriptedSdk;
using TestSupport::SdkStep;

constexpr InterfaceRet kDone{true, 0, -1};
constexpr InterfaceRet kNoRecord{false, 2, 23};

/// How an operation ended whose output was in use before.
struct Ended
{
    InterfaceRet result;
    bool isAnswer = false;      ///< the output holds what the device sent; true without an output
    bool isAtDefaults = false;  ///< true without an output
};

struct Row
{
    const char* name;
    const char* line;
    std::string body;    ///< that is to be sent
    std::string answer;  ///< of the device; empty for settings
    std::function<Ended(int userID)> run;
};

template <class Record>
std::string Document(Record record)
{
    return xml::DumpDocument(record.CreateXmlNodePtr(), "");
}

/// Asks into a record that was in use before.
template <class Record, class Ask>
Ended AskInto(const Record& before, const Record& expected, Ask ask)
{
    Record out;
    {
        const NoAllocationFaults pause;
        out = before;
    }
    Ended ended;
    ended.result = ask(out);
    const NoAllocationFaults pause;
    ended.isAnswer = SameFields(out, expected);
    ended.isAtDefaults = SameFields(out, Record());
    return ended;
}

template <class Record>
Row Get(const char* name, const char* line, InterfaceRet (*get)(Record&, int))
{
    const auto expected = RecordGenerator(3).Make<Record>();
    return {name, line, "", Document(expected),
            [get, expected, before = RecordGenerator(4).Make<Record>()](int userID) {
                return AskInto(before, expected, [=](Record& out) { return get(out, userID); });
            }};
}

template <class Record>
Row Set(const char* name, const char* line, InterfaceRet (*set)(const Record&, int))
{
    const auto setting = RecordGenerator(5).Make<Record>();
    return {name, line, setting.createXml(), "", [=](int userID) {
                return Ended{set(setting, userID), true, true};
            }};
}

template <class Condition, class Record>
Row Search(const char* name, const char* line,
           InterfaceRet (*search)(const Condition&, Record&, int))
{
    const auto condition = RecordGenerator(6).Make<Condition>();
    const std::string answer =
        "<" + std::string(Record::kRoot) + "><found n='1'>x</found></" + Record::kRoot + ">";
    const Record before("<" + std::string(Record::kRoot) + "/>");
    const Record expected(answer);
    return {name, line, condition.createXml(), answer, [=](int userID) {
                return AskInto(before, expected,
                               [&](Record& out) { return search(condition, out, userID); });
            }};
}

const std::vector<Row>& Rows()
{
    using Param = ParamInterface;
    static const std::vector<Row> rows{
        Get("ParamInterface::GetSwitchesBasicInfo", "GET /TARN/Transfers/Switches/basicInfo\r\n",
            Param::GetSwitchesBasicInfo),
        Set("ParamInterface::SetSwitchesBasicInfo", "PUT /TARN/Transfers/Switches/basicInfo\r\n",
            Param::SetSwitchesBasicInfo),
        Get("ParamInterface::GetPortRates", "GET /TARN/Transfers/Switches/portCfg/portRate/\r\n",
            Param::GetPortRates),
        Set("ParamInterface::SetPortRates", "PUT /TARN/Transfers/Switches/portCfg/portRate/\r\n",
            Param::SetPortRates),
        Get("ParamInterface::GetPortInfo", "GET /TARN/Transfers/Switches/portCfg/portInfo\r\n",
            Param::GetPortInfo),
        Search("ParamInterface::SearchSwitchesWorkState",
               "POST /TARN/Transfers/Switches/workState/search\r\n",
               Param::SearchSwitchesWorkState),
        Get("ParamInterface::GetWireless", "GET /TARN/Transfers/Switches/wireless\r\n",
            Param::GetWireless),
        Set("ParamInterface::SetWireless", "PUT /TARN/Transfers/Switches/wireless\r\n",
            Param::SetWireless),
        Get("ParamInterface::GetBridgeRegion", "GET /TARN/Transfers/Switches/region\r\n",
            Param::GetBridgeRegion),
        Set("ParamInterface::SetBridgeRegion", "PUT /TARN/Transfers/Switches/region\r\n",
            Param::SetBridgeRegion),
        Get("ParamInterface::GetDiscoveryMode", "GET /TARN/System/discoveryMode\r\n",
            Param::GetDiscoveryMode),
        Set("ParamInterface::SetDiscoveryMode", "PUT /TARN/System/discoveryMode\r\n",
            Param::SetDiscoveryMode),
        Get("ParamInterface::GetDeviceStatus", "GET /TARN/System/status\r\n",
            Param::GetDeviceStatus),
        Get("ParamInterface::GetApps", "GET /TARN/System/App\r\n", Param::GetApps),
        Search("ConfigCapXML::SearchContent", "POST /TARN/ContentMgmt/search\r\n",
               ConfigCapXML::SearchContent)};
    return rows;
}

SdkStep Answer(const std::string& text)
{
    return {.answer = text, .returnedSize = static_cast<unsigned>(text.size())};
}

/// Runs a check on every operation, each with an SDK that answers what `steps` makes for it.
template <class Steps, class Check>
void ForEachOperation(Steps steps, Check check)
{
    for (const Row& row : Rows()) {
        SCOPED_TRACE(row.name);
        ScriptedSdk::Fresh().steps = steps(row);
        check(row, ScriptedSdk::Instance().calls);
    }
}

TEST(ParamInterfaceTest, SendsItsLineAndBodyAndReadsTheAnswerOnceItFits)
{
    const auto tooSmallFirst = [](const Row& row) {
        return std::vector<SdkStep>{{.error = 43, .returnedSize = 100'000}, Answer(row.answer)};
    };
    ForEachOperation(tooSmallFirst, [](const Row& row, const auto& calls) {
        const Ended ended = row.run(6);
        EXPECT_EQ(ended.result, kDone);
        EXPECT_TRUE(ended.isAnswer);
        ASSERT_EQ(calls.size(), 2U);
        EXPECT_EQ(calls[0].userID, 6);
        EXPECT_EQ(calls[0].line, row.line);
        EXPECT_EQ(calls[0].input, row.body);
        EXPECT_EQ(calls[0].size, row.answer.empty() ? 0U : 2048U);
        EXPECT_EQ(calls[0].timeout + static_cast<unsigned>(calls[0].flag), 0U);
        EXPECT_TRUE(calls[0].isWellFilled && calls[0].isZeroed);
        EXPECT_EQ(calls[1].input, row.body);
        EXPECT_EQ(calls[1].size, 100'000U);
    });
}

TEST(ParamInterfaceTest, HandsOnEveryOutcomeOfTheManagerWithTheOutputAtDefaults)
{
    SDKInterfaceManager& manager = SDKInterfaceManager::instance();
    std::vector<int> heard;
    manager.setSDKErrorProcessCallBack([&](int error) { heard.push_back(error); });
    manager.setXmlErrorTransCallBack([](int code, const std::string&) { return 100 + code; });
    const std::string status = "<ResponseStatus><statusCode>4</statusCode></ResponseStatus>";
    struct Case
    {
        SdkStep step;
        int userID;
        InterfaceRet result;
    };
    const Case cases[] = {
        {{}, -1, {false, 1, -1}},
        {{.error = 7}, 6, {false, 2, 7}},
        {{.error = 1000}, 6, {false, 2, 23}},
        {{.error = 1001, .returnedSize = 10}, 6, {false, 2, 43}},
        {{.error = 7, .status = status, .returnedSize = 500}, 6, {false, 3, 104}}};
    for (const Case& each : cases) {
        ForEachOperation([&](const Row&) { return std::vector<SdkStep>{each.step}; },
                         [&](const Row& row, const auto& calls) {
                             heard.clear();
                             const Ended ended = row.run(each.userID);
                             EXPECT_EQ(ended.result, each.result);
                             EXPECT_TRUE(ended.isAtDefaults);
                             EXPECT_EQ(calls.size(), each.userID < 0 ? 0U : 1U);
                             EXPECT_EQ(heard.size(), each.result.errorType == 2 ? 1U : 0U);
                         });
    }
    manager.setSDKErrorProcessCallBack({});
    manager.setXmlErrorTransCallBack({});
}

TEST(ParamInterfaceTest, AnAnswerThatIsNoDocumentOfTheRecordIsError23)
{
    const std::pair<const char*, const char*> answers[] = {
        {"", nullptr},
        {"<Foreign/>", "The root element is mismatched with the XML."},
        {"<unclosed>", "Cann't parse the XML"}};
    for (const auto& [answer, line] : answers) {
        ForEachOperation([&](const Row&) { return std::vector<SdkStep>{Answer(answer)}; },
                         [&](const Row& row, const auto&) {
                             const LogCapture log;
                             const Ended ended = row.run(6);
                             EXPECT_EQ(ended.result, row.answer.empty() ? kDone : kNoRecord);
                             EXPECT_TRUE(ended.isAtDefaults);
                             const bool isTold = !row.answer.empty() && line != nullptr;
                             ASSERT_EQ(log.Lines().size(), isTold ? 1U : 0U);
                             if (isTold) {
                                 EXPECT_THAT(log.Lines()[0].message, testing::StartsWith(line));
                                 EXPECT_EQ(log.Lines()[0].function,
                                           std::string("CapabilitySet::") + row.name);
                             }
                         });
    }
}

TEST(ParamInterfaceTest, EndsAsError23WhenMemoryRunsOutAnywhere)
{
    LogCapture log;
    const auto answered = [](const Row& row) { return std::vector<SdkStep>{Answer(row.answer)}; };
    std::size_t points = 0;
    ForEachOperation(answered, [&](const Row& row, const auto&) {
        ScriptedSdk::Instance().keepsCalls = false;
        const auto run = [&row] { return row.run(6); };
        run();  // what is made once for the process or the thread is made now
        points += TestSupport::FailEachAllocation(run, [&](const Ended& ended, bool struck) {
            ASSERT_TRUE(struck || ended.result == kDone);
            ASSERT_TRUE(ended.result == kNoRecord || ended.result == kDone);
            ASSERT_TRUE(ended.result == kDone ? ended.isAnswer : ended.isAtDefaults);
            ASSERT_EQ(run().result, kDone) << "the next operation";
            log.Clear();
        });
    });
    std::cout << points << " allocations\n";
}

}  // namespace
