// Network faults between a served device and the library: the result of each family's operations,
// that the fault occurred, and that the next request succeeds.
// SPDX-License-Identifier: Apache-2.0
#include <chrono>
#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/BasicCapability.h"
#include "CapabilitySet/ChannelAbility.h"
#include "CapabilitySet/JsonTARN/JsonCap/JsonCapApp.h"
#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/SystemAbility.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "support/DeviceSteps.h"
#include "support/OperationFamily.h"

namespace
{

using namespace CapabilitySet;
using namespace std::chrono_literals;
using namespace TestSupport;
using Device::Fault;
using Device::FaultKind;

struct Given
{
    bool success = false;
    unsigned err = 0;
    bool isFilled = false;
};

template <class Record, class Query>
Given AskInto(Query query)
{
    Record record;
    Given given{.err = 77};
    given.success = query(record, given.err);
    given.isFilled = !SameFields(record, Record());
    if constexpr (requires { record.Capable(); }) {
        given.isFilled = given.isFilled || record.Capable();
    }
    return given;
}

Given AskForPackage(int user)
{
    tagNET_ORB_XML_CONFIG_OUTPUT out{};
    Given given{.err = 77};
    given.success = JsonConfigApp::GetHFPDDataPackage(out, "pkg-40", given.err, user);
    const std::unique_ptr<char[]> package(static_cast<char*>(out.outBuffer));
    given.isFilled = package != nullptr && out.returnedSize >= 40;
    return given;
}

Given AskManager(int user)
{
    std::string answer;
    std::string status;
    const auto result = ParseXmlHelper::SDKInterfaceManager::instance().TransparentRequsetGET(
        user, "GET /TARN/System/deviceInfo\r\n", answer, status, 0, false);
    return {result.success, result.success ? 0 : static_cast<unsigned>(result.errorCode),
            result.success && !answer.empty()};
}

#define ASK(Record, call) \
    [](int user) { return AskInto<Record>([user](Record& out, unsigned& err) { return call; }); }

struct Subject
{
    const char* name;
    Family family;
    const char* profile;
    Given (*ask)(int user);
};

const Subject kSubjects[] = {
    {"device ability", kDeviceAbility, "recorder",
     ASK(BasicCapability, BasicCapability::GetBasicCapability(out, err, user))},
    {"standard ability", kStandardAbility, "recorder",
     ASK(ChannelInfoAbility, ChannelInfoAbility::GetChannelInfoAbility(out, err, user, 1, ""))},
    {"transparent", kTransparent, "recorder",
     ASK(DeviceCap, DeviceCap::GetDeviceCapability(out, err, user))},
    {"JSON", kJson, "recorder", ASK(HFPDCapbility, JsonCapApp::GetHFPDCapability(out, err, user))},
    {"alarm host", kAlarmHost, "alarmhost",
     ASK(AlarmHostZoneConfig, JsonConfigApp::GetAlarmHostZoneConfiguration(out, err, user))},
    {"package", kPackage, "recorder", AskForPackage},
    {"manager", kManager, "recorder", AskManager},
};

struct Row
{
    const char* name;
    Fault fault;
    unsigned error = 0;          ///< of the families that fail
    unsigned fails = kAllRoads;  ///< the others succeed
    std::uint64_t least = 1;     ///< strikes
    std::uint64_t most = 1;
    unsigned families = kAllRoads;
    bool hasPage = false;  ///< the refusal has a text, which the manager takes for the device's
};

constexpr unsigned kShortTimeout = 1000;  // milliseconds

// A package waits two minutes for its answer, so it is left out where the time-out ends a request.
const unsigned kInTime = kAllRoads & ~kPackage;

const Row kRows[] = {
    {"Delay", {.kind = FaultKind::Delay, .interval = 30ms}, 0, 0},
    {"Drip", {.kind = FaultKind::Drip, .interval = 1ms, .bytes = 32}, 0, 0},
    {"DripTooSlow",
     {.kind = FaultKind::Drip, .interval = 300ms, .bytes = 1},
     NET_ORB_NETWORK_RECV_TIMEOUT,
     kAllRoads,
     1,
     1,
     kInTime},
    {"Stall",
     {.kind = FaultKind::Stall, .interval = 100ms, .bytes = 5},
     NET_ORB_NETWORK_RECV_ERROR},
    {"StallForEver",
     {.kind = FaultKind::Stall, .bytes = 5},
     NET_ORB_NETWORK_RECV_TIMEOUT,
     kAllRoads,
     1,
     1,
     kInTime},
    {"Truncate", {.kind = FaultKind::Truncate, .bytes = 30}, NET_ORB_NETWORK_RECV_ERROR},
    {"TruncateAtOnce", {.kind = FaultKind::Truncate}, NET_ORB_NETWORK_RECV_ERROR},
    // On a kept connection a GET is repeated once; nothing else is.
    {"Reset", {.kind = FaultKind::Reset}, NET_ORB_NETWORK_RECV_ERROR, kAllRoads, 1, 2},
    {"ResetOnce",
     {.kind = FaultKind::Reset, .times = 1},
     NET_ORB_NETWORK_RECV_ERROR,
     kDeviceAbility},
    {"UnauthorizedOnce", {.kind = FaultKind::Unauthorized, .times = 1}, NET_ORB_PASSWORD_ERROR, 0},
    {"UnauthorizedForEver",
     {.kind = FaultKind::Unauthorized},
     NET_ORB_PASSWORD_ERROR,
     kAllRoads,
     1,
     3,
     kAllRoads,
     true},
    {"StaleNonceOnce", {.kind = FaultKind::StaleNonce, .times = 1}, 0, 0},
    {"StaleNonceForEver", {.kind = FaultKind::StaleNonce}, NET_ORB_PASSWORD_ERROR, kAllRoads, 1, 6},
    {"ServerError",
     {.kind = FaultKind::ServerError, .httpStatus = 500},
     NET_ORB_DEVICE_REFUSED,
     kAllRoads,
     1,
     1,
     kAllRoads,
     true},
    {"Refuse",
     {.kind = FaultKind::Refuse, .subStatusCode = "deviceBusy"},
     NET_ORB_DEVICE_BUSY,
     kAllRoads,
     1,
     1,
     kAllRoads,
     true},
    {"Oversize", {.kind = FaultKind::Oversize, .bytes = 20'000}, 0, 0},
    {"OversizeBeyondEveryBuffer",
     {.kind = FaultKind::Oversize, .bytes = 17 << 20},
     NET_ORB_BUFFER_TOO_SMALL,
     kXmlRoads | kJsonRoads,
     0,   // the size announced is enough to refuse it
     2},  // the manager asks again for that size
};

void PrintTo(const Row& row, std::ostream* out)
{
    *out << row.name;
}

class WireFaultTest : public testing::TestWithParam<Row>
{
};

TEST_P(WireFaultTest, StrikesComesOutAsItShouldAndPasses)
{
    const Row& row = GetParam();
    for (const Subject& subject : kSubjects) {
        if ((subject.family & row.families) == 0) {
            continue;
        }
        SCOPED_TRACE(subject.name);
        Asked device(Road::Http, subject.profile,
                     row.error == NET_ORB_NETWORK_RECV_TIMEOUT ? kShortTimeout : 0);
        device.SetFaults({row.fault});
        const Given given = subject.ask(device);
        const std::uint64_t struck = device.FaultCounts().front();
        EXPECT_TRUE(struck >= row.least && struck <= row.most) << struck << " strikes";
        const bool fails = (subject.family & row.fails) != 0;
        EXPECT_EQ(given.success, !fails);
        EXPECT_EQ(given.isFilled, !fails);
        const bool isPage = row.hasPage && subject.family == kManager;
        EXPECT_EQ(given.err, !fails ? 0 : isPage ? static_cast<unsigned>(-1) : row.error);
        device.SetFaults({});
        const Given next = subject.ask(device);
        EXPECT_TRUE(next.success && next.isFilled) << "error " << next.err;
    }
}

INSTANTIATE_TEST_SUITE_P(Each, WireFaultTest, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
