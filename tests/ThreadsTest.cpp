// Operations of every family on many threads at once, on several sessions.
// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/DisplayAbility.h"
#include "CapabilitySet/DynChannelAbility.h"
#include "CapabilitySet/EventAbility.h"
#include "CapabilitySet/EventTriggerCapAbility.h"
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonCap/MacCompanyHelper.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"
#include "CapabilitySet/XMLParamInterface/ParamInterface.h"
#include "Keel/Error.h"
#include "support/Deep.h"
#include "support/DeviceSteps.h"

namespace
{

using namespace CapabilitySet;
using TestSupport::Asked;
using TestSupport::Road;

constexpr unsigned kThreads = 8;

unsigned Operations()
{
    return TestSupport::IsDeep() ? 100'000 : 10'000;
}

/// The outcome of an operation; always the same when the same device is asked.
struct Given
{
    bool result = false;
    unsigned err = 0;
    std::size_t content = 0;
    int lastError = 0;
    bool operator==(const Given&) const = default;
};

/// One operation on one session.
struct Row
{
    const char* name;
    int user;
    Given (*ask)(int user);

    [[nodiscard]] Given Ask() const
    {
        Keel::Error::SetLastError({});
        Given given = ask(user);
        given.lastError = Keel::Error::GetLastError().code;
        return given;
    }
};

/// A query that fills a record; `content` distinguishes answers.
template <class Record, class Query, class Content>
Given Fill(Query query, Content content)
{
    Record record;
    unsigned err = 0;
    const bool result = query(record, err);
    return {result, err, static_cast<std::size_t>(content(record))};
}

#define FILLS(Record, call, content)                                               \
    [](int user) {                                                                 \
        static_cast<void>(user);                                                   \
        return Fill<Record>(                                                       \
            [user]([[maybe_unused]] Record& out, [[maybe_unused]] unsigned& err) { \
                return static_cast<bool>(call);                                    \
            },                                                                     \
            []([[maybe_unused]] const Record& out) { return content; });           \
    }

CMSearchDescription Track101()
{
    CMSearchDescription description;
    description.searchID = "one";
    description.trackIDList.trackID = {"101"};
    description.timeSpanList.timeSpan.push_back(std::make_shared<TimeSpan>());
    description.timeSpanList.timeSpan[0]->startTime = "2026-11-18T00:00:00Z";
    description.timeSpanList.timeSpan[0]->endTime = "2026-11-18T01:00:00Z";
    description.maxResults = 1;
    return description;
}

/// Every family; the last rows fail, each in its own way.
std::vector<Row> RowsOf(int dome, int remoteDome, int recorder, int alarmHost, int networkSwitch)
{
    using Config = JsonConfigApp;
    return {
        {"basic", dome,
         FILLS(BasicCapability, BasicCapability::GetBasicCapability(out, err, user),
               out.hardware.USBNum)},
        {"basic over HTTP", remoteDome,
         FILLS(BasicCapability, BasicCapability::GetBasicCapability(out, err, user),
               out.hardware.USBNum)},
        {"events", dome,
         FILLS(EventAbility, EventAbility::GetEventAbility(out, err, user, 1), out.capable)},
        {"triggers", dome,
         FILLS(EventTriggerCap, EventTriggerCap::GetEventTriggerCapAbility(out, err, user, 1),
               out.capable)},
        {"channels", recorder,
         FILLS(DynChannelAbility, DynChannelAbility::GetDynChannelAbility(out, err, user, 1),
               out.capable)},
        {"system over HTTP", remoteDome,
         FILLS(DeviceCap, DeviceCap::GetDeviceCapability(out, err, user),
               out.root.children.size())},
        {"tracking", dome,
         FILLS(CVelTarnPTZAutoTracking, CVelTarnPTZAutoTracking::GetAutoTrackingState(user, 1, out),
               out.enabled)},
        {"recordings", recorder,
         FILLS(CMSearchResult, ConfigCapXML::SearchContent(Track101(), out, user).success,
               out.root.children.size())},
        {"switch", networkSwitch,
         FILLS(PortRateList, ParamInterface::GetPortRates(out, user).success, 1)},
        {"JSON capability", recorder,
         FILLS(HFPDCapbility, JsonCapApp::GetHFPDCapability(out, err, user), out.occurrences.def)},
        {"states", alarmHost,
         FILLS(AlarmHostCommunicationStatus, Config::GetAlarmHostCommuniStatus(out, err, user),
               out.root.size())},
        {"queues", dome,
         FILLS(PersonQueueTimeResult,
               Config::SearchPersonQueueTime(PersonQueueTimeDescription(), out, err, 1, user),
               out.root.size())},
        {"command", alarmHost,
         FILLS(JsonStatus, Config::SetDevDisArm(out, 1, err, user), out.statusCode)},
        {"MAC address", 0,
         [](int) {
             CMacCompanyHelper helper;
             return Given{true, 0, helper.getCompanyNameByMAc("0002d1").size()};
         }},
        {"nobody logged in", -1,
         FILLS(BasicCapability, BasicCapability::GetBasicCapability(out, err, user), out.valid)},
        {"unsupported ability", dome,
         FILLS(DecoderAbility, DecoderAbility::GetDecoderAbility(out, err, user), out.capable)},
        {"unsupported path", alarmHost,
         FILLS(HFPDCapbility, JsonCapApp::GetHFPDCapability(out, err, user), 0U)},
    };
}

TEST(ThreadsTest, EachThreadGetsItsOwnAnswersAndItsOwnLastError)
{
    const Asked dome(Road::InProcess, "dome");
    const Asked remoteDome(Road::Http, "dome");
    const Asked recorder(Road::InProcess, "recorder");
    const Asked alarmHost(Road::InProcess, "alarmhost");
    const Asked networkSwitch(Road::InProcess, "switch");
    const std::vector<Row> rows = RowsOf(dome, remoteDome, recorder, alarmHost, networkSwitch);
    std::vector<Given> alone;
    for (const Row& row : rows) {
        alone.push_back(row.Ask());
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(alone[row].result, row + 3 < rows.size()) << rows[row].name;
        EXPECT_EQ(alone[row].lastError != 0, row + 3 >= rows.size()) << rows[row].name;
    }

    std::vector<std::atomic<unsigned>> wrong(rows.size());
    std::vector<std::thread> threads;
    for (unsigned thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([&, thread] {
            // Different strides, so that every pair of rows runs at the same time.
            std::size_t row = thread;
            for (unsigned i = 0; i < Operations() / kThreads; ++i) {
                row = (row + 2 * thread + 1) % rows.size();
                if (rows[row].Ask() != alone[row]) {
                    ++wrong[row];
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        EXPECT_EQ(wrong[row], 0U) << rows[row].name;
    }
}

}  // namespace
