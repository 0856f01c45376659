// The portable SDK over the simulated device in this process.
// SPDX-License-Identifier: Apache-2.0
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <barrier>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "PelNetSDK/Session.h"
#include "support/SdkCalls.h"
#include "support/TemporaryFolder.h"

namespace
{

using TestSupport::Ask;
using TestSupport::AskDeviceAbility;
using TestSupport::AskStandardAbility;
using TestSupport::LoggedIn;
using TestSupport::Outcome;
using TestSupport::Sizes;
using TestSupport::Statistics;

const std::string kLarge = "<Large>" + std::string(10'000 - 15, 'x') + "</Large>";
const std::string kTime = "<Time><zone>UTC</zone></Time>";

/// Has its own profile folder.
class SdkSim : public testing::Test
{
protected:
    SdkSim()
    {
        Write("large.xml", kLarge);
        Write("time.xml", kTime);
        Write("manifest.json", R"({"name": "small", "description": "what the tests ask for",
            "users": [{"name": "admin", "password": "secret-1"}],
            "channels": {"1": 1, "33": 7},
            "answers": [
              {"request": "deviceAbility 1", "file": "large.xml"},
              {"request": "stdAbility 4360", "file": "large.xml"},
              {"request": "GET /TARN/large", "file": "large.xml"},
              {"request": "POST /TARN/reboot", "status": "ok"},
              {"request": "POST /TARN/busy", "status": "deviceBusy"},
              {"request": "/TARN/time", "file": "time.xml", "setting": true}]})");
        address_ = "sim:" + folder_.string();
        info_.address = address_.c_str();
    }

    void Write(const std::string& name, const std::string& text) const
    {
        std::ofstream(folder_ / name) << text;
    }

    const TestSupport::TemporaryFolder temporary_;
    const std::filesystem::path folder_ = temporary_.Path();
    std::string address_;
    tagNET_ORB_LOGIN_INFO info_{};
};

}  // namespace

TEST_F(SdkSim, GrowingBufferCostsOneExchange)
{
    const LoggedIn device(info_);
    const auto size = static_cast<unsigned>(kLarge.size());
    const auto before = Statistics();
    for (unsigned tooSmall = 1000; tooSmall < size; tooSmall += 3000) {
        const Outcome outcome = Ask(device.UserID(), "GET /TARN/large\r\n", "", {tooSmall});
        EXPECT_EQ(outcome.error, NET_ORB_BUFFER_TOO_SMALL);
        EXPECT_EQ(outcome.returnedSize, size);
    }
    const Outcome exact = Ask(device.UserID(), "GET /TARN/large\r\n", "", {size});
    EXPECT_TRUE(exact.answer == kLarge) << "a text that fills the buffer exactly fits";
    EXPECT_EQ(Statistics().exchanges - before.exchanges, 1U);
    EXPECT_TRUE(Ask(device.UserID(), "GET /TARN/large\r\n", "", {size}).success);
    EXPECT_EQ(Statistics().exchanges - before.exchanges, 2U) << "served once, then asked anew";

    EXPECT_EQ(AskDeviceAbility(device.UserID(), 1, "", 9000).error, NET_ORB_BUFFER_TOO_SMALL);
    EXPECT_TRUE(AskDeviceAbility(device.UserID(), 1, "", 10'001).answer == kLarge);
    EXPECT_EQ(AskStandardAbility(device.UserID(), 4360, 1, 9000).returnedSize, size);
    EXPECT_TRUE(AskStandardAbility(device.UserID(), 4360, 1, 10'001).answer == kLarge);
    EXPECT_EQ(Statistics().exchanges - before.exchanges, 4U);
    EXPECT_EQ(Statistics().fromMemory - before.fromMemory, 5U);
}

TEST_F(SdkSim, KeptAnswerServesNothingButTheGrownRepeat)
{
    const LoggedIn device(info_);
    const LoggedIn other(info_);
    const int user = device.UserID();
    const std::string line = "GET /TARN/large";
    const auto asked = [&](const auto& call) {
        EXPECT_EQ(Ask(user, line, "", {100}).error, NET_ORB_BUFFER_TOO_SMALL);
        const auto before = Statistics().exchanges;
        call();
        return Statistics().exchanges - before;
    };
    EXPECT_EQ(asked([&] { Ask(user, line, "", {200}); }), 0U) << "still too small, still kept";
    EXPECT_EQ(asked([&] { Ask(user, line, "", {100}); }), 1U) << "a buffer that did not grow";
    EXPECT_EQ(asked([&] { Ask(user, line, "body", {20'000}); }), 1U) << "another body";
    EXPECT_EQ(asked([&] { Ask(other.UserID(), line, "", {20'000}); }), 1U) << "another session";
    EXPECT_EQ(asked([&] { std::thread([&] { Ask(user, line, "", {20'000}); }).join(); }), 1U)
        << "another thread";
    EXPECT_EQ(asked([&] {
                  Ask(user, "GET /TARN/time");
                  Ask(user, line, "", {20'000});
              }),
              2U)
        << "a different request in between drops it";
    EXPECT_EQ(asked([&] { AskDeviceAbility(user, 1, "", 20'000); }), 1U) << "another question";
}

TEST(SessionTest, NothingIsKeptOnceItIsClosed)
{
    struct Silent : PelNet::Transport
    {
        unsigned Exchange(const PelNet::TransportRequest&, PelNet::TransportAnswer&) override
        {
            return NET_ORB_CANCELLED;
        }
        void Cancel() noexcept override {}
    };
    const PelNet::TransportRequest request{{"GET", "/a"}, {}};
    PelNet::Session session(std::make_unique<Silent>());
    const auto isKept = [&](bool closes) {
        session.Keep({.session = &session, .line = request.line, .body = PelNet::AnswerBody(1)});
        if (closes) {
            session.Close();
        }
        return PelNet::KeptAnswer::OfThisThread()->Take(session, request, 1).has_value();
    };
    EXPECT_TRUE(isKept(false));
    EXPECT_FALSE(isKept(true)) << "kept before";
    EXPECT_FALSE(isKept(false)) << "by a request that was still running";
}

TEST_F(SdkSim, ChangeWithTooSmallBufferIsCarriedOutOnce)
{
    const LoggedIn device(info_);
    const auto before = Statistics().exchanges;
    const std::string body = "<Time><zone>CET</zone></Time>";
    const Outcome first = Ask(device.UserID(), "PUT /TARN/time", body, {8});
    ASSERT_EQ(first.error, NET_ORB_BUFFER_TOO_SMALL);
    const Outcome second = Ask(device.UserID(), "PUT /TARN/time", body, {first.returnedSize});
    EXPECT_NE(second.answer.find("ResponseStatus"), std::string::npos) << second.answer;
    EXPECT_EQ(Statistics().exchanges - before, 1U);
    EXPECT_EQ(Ask(device.UserID(), "/TARN/time\r\n").answer, body) << "no method is a GET";
}

TEST_F(SdkSim, NoAnswerWantedSucceedsAndReportsTheStatusDocument)
{
    const LoggedIn device(info_);
    EXPECT_TRUE(Ask(device.UserID(), "GET /TARN/large", "", {0, 0}).success);
    const Outcome plain = Ask(device.UserID(), "GET /TARN/large", "", {0, 512});
    EXPECT_TRUE(plain.success);
    EXPECT_EQ(plain.status, "") << "a document is no status";
    const Outcome change = Ask(device.UserID(), "POST /TARN/reboot", "", {0, 512});
    EXPECT_TRUE(change.success);
    EXPECT_NE(change.status.find("<ResponseStatus"), std::string::npos);
    EXPECT_EQ(change.returnedSize, change.status.size());
}

TEST_F(SdkSim, RefusalsFillTheStatusBufferAndName)
{
    const LoggedIn device(info_);
    const int user = device.UserID();
    const Outcome unknown = Ask(user, "GET /TARN/nothing");
    EXPECT_EQ(unknown.error, NET_ORB_NOSUPPORT);
    EXPECT_EQ(unknown.returnedSize, unknown.status.size());
    EXPECT_NE(unknown.status.find("notSupport"), std::string::npos) << unknown.status;
    EXPECT_NE(unknown.modelCode, 0);
    const Outcome cut = Ask(user, "GET /TARN/nothing", "", {4096, 10});
    EXPECT_EQ(cut.status, unknown.status.substr(0, 10));
    EXPECT_EQ(cut.returnedSize, 10U);
    EXPECT_EQ(Ask(user, "POST /TARN/busy").error, NET_ORB_DEVICE_BUSY);
    EXPECT_EQ(AskDeviceAbility(user, 999, "", 100).error, NET_ORB_ABILITY_FAILED);
    EXPECT_EQ(AskStandardAbility(user, 999, 1, 100).error, NET_ORB_ABILITY_FAILED);
    EXPECT_EQ(AskStandardAbility(user, 4360, 2, 20'000).error, NET_ORB_CHANNEL_ERROR);
    EXPECT_EQ(Ask(user, "GET /TARN/tim%65").answer, kTime) << "the device reads a decoded path";
    EXPECT_EQ(Ask(user, "GET /TARN/ti me").error, NET_ORB_NOSUPPORT);
}

TEST_F(SdkSim, ChannelMapIsAskedOnce)
{
    const LoggedIn device(info_);
    const auto before = Statistics().exchanges;
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(NET_ORB_SDKChannelToTARN(device.UserID(), 33, 1), 7);
    }
    EXPECT_EQ(Statistics().exchanges - before, 1U);
    for (const int channel : {2, -1, 2'000'000'000}) {
        EXPECT_EQ(NET_ORB_SDKChannelToTARN(device.UserID(), channel, 1), -1) << channel;
        EXPECT_EQ(NET_ORB_GetLastError(), NET_ORB_CHANNEL_ERROR) << channel;
    }
    EXPECT_EQ(NET_ORB_SDKChannelToTARN(-1, 1, 1), -1);
    EXPECT_EQ(NET_ORB_GetLastError(), NET_ORB_NOINIT);
}

TEST_F(SdkSim, BadArgumentsAreErrorsNotCrashes)
{
    const LoggedIn device(info_);
    const int user = device.UserID();
    std::array<char, 64> space{};
    std::string line = "GET /TARN/time";
    tagNET_ORB_XML_CONFIG_INPUT input{};
    input.size = sizeof input;
    input.requestUrl = line.data();
    input.requestUrlLength = static_cast<unsigned>(line.size());
    tagNET_ORB_XML_CONFIG_OUTPUT output{};
    output.size = sizeof output;
    output.outBuffer = space.data();
    output.outBufferSize = space.size();
    ASSERT_NE(NET_ORB_STDXMLConfig(user, &input, &output), 0);

    const auto refused = [&](auto change, unsigned error = NET_ORB_PARAMETER_ERROR) {
        auto badInput = input;
        auto badOutput = output;
        int id = user;
        change(id, badInput, badOutput);
        return NET_ORB_STDXMLConfig(id, &badInput, &badOutput) == 0 &&
               NET_ORB_GetLastError() == error;
    };
    EXPECT_TRUE(refused([](auto&, auto& in, auto&) { in.size = 52; }));
    EXPECT_TRUE(refused([](auto&, auto&, auto& out) { out.size = 0; }));
    EXPECT_TRUE(refused([](auto&, auto& in, auto&) { in.requestUrl = nullptr; }));
    EXPECT_TRUE(refused([](auto&, auto& in, auto&) { in.requestUrlLength = 0; }));
    EXPECT_TRUE(refused([](auto&, auto& in, auto&) { in.inBufferSize = 5; }));
    EXPECT_TRUE(refused([](auto&, auto&, auto& out) { out.outBuffer = nullptr; }));
    EXPECT_TRUE(refused([](auto&, auto&, auto& out) { out.statusSize = 5; }));
    for (const int unknown : {-1, -2'000'000'000, 511, 512, 2'000'000'000}) {
        EXPECT_TRUE(refused([&](int& id, auto&, auto&) { id = unknown; }, NET_ORB_NOINIT));
        EXPECT_EQ(NET_ORB_Logout(unknown), 0);
    }
    EXPECT_EQ(NET_ORB_STDXMLConfig(user, nullptr, &output), 0);
    EXPECT_EQ(NET_ORB_STDXMLConfig(user, &input, nullptr), 0);
    EXPECT_EQ(NET_ORB_GetSTDAbility(user, 1, nullptr), 0);
    tagNET_ORB_STD_ABILITY ability{};
    ability.conditionSize = 4;
    EXPECT_EQ(NET_ORB_GetSTDAbility(user, 1, &ability), 0);
    EXPECT_EQ(NET_ORB_GetDeviceAbility(user, 1, nullptr, 3, space.data(), 64), 0);
    EXPECT_EQ(NET_ORB_GetLastError(), NET_ORB_PARAMETER_ERROR);
    EXPECT_EQ(NET_ORB_GetStatistics(nullptr), 0);
    EXPECT_NE(NET_ORB_GetLastErrorModelCode(nullptr, nullptr), 0);
}

TEST_F(SdkSim, LoginDistinguishesWrongProfileAndWrongPassword)
{
    struct Case
    {
        const char* address;
        const char* user;
        const char* password;
        unsigned error;
    };
    const std::string own = address_;
    for (const Case& c : std::vector<Case>{
             {own.c_str(), "admin", "secret-1", NET_ORB_NOERROR},
             {own.c_str(), nullptr, nullptr, NET_ORB_NOERROR},
             {own.c_str(), "admin", "wrong", NET_ORB_PASSWORD_ERROR},
             {own.c_str(), "nobody", nullptr, NET_ORB_PASSWORD_ERROR},
             {"sim:", nullptr, nullptr, NET_ORB_NO_SUCH_PROFILE},
             {"sim:/no/such/folder", nullptr, nullptr, NET_ORB_NO_SUCH_PROFILE},
             {"", nullptr, nullptr, NET_ORB_PARAMETER_ERROR},
             {nullptr, nullptr, nullptr, NET_ORB_PARAMETER_ERROR},
             {"ftp://127.0.0.1", nullptr, nullptr, NET_ORB_PARAMETER_ERROR},
             {"http://u:p@127.0.0.1:1", nullptr, nullptr, NET_ORB_PARAMETER_ERROR},
             {"http://127.0.0.1:1/path", nullptr, nullptr, NET_ORB_PARAMETER_ERROR}}) {
        tagNET_ORB_LOGIN_INFO info{};
        info.address = c.address;
        info.userName = c.user;
        info.password = c.password;
        const int user = NET_ORB_Login(&info);
        EXPECT_EQ(user >= 0, c.error == NET_ORB_NOERROR) << (c.address ? c.address : "null");
        if (user < 0) {
            EXPECT_EQ(NET_ORB_GetLastError(), c.error) << (c.address ? c.address : "null");
        }
        NET_ORB_Logout(user);
    }
    EXPECT_EQ(NET_ORB_Login(nullptr), -1);
    Write("manifest.json", "{");
    EXPECT_EQ(NET_ORB_Login(&info_), -1);
    EXPECT_STRNE(NET_ORB_GetLastErrorDetail(), "") << "what is wrong with the manifest";
    info_.address = (address_ += std::string(1000, 'x')).c_str();
    EXPECT_EQ(NET_ORB_Login(&info_), -1);
    EXPECT_EQ(std::string(NET_ORB_GetLastErrorDetail()).size(), 255U) << "as much as there is room";
    EXPECT_EQ(NET_ORB_Logout(-1), 0);
    EXPECT_STREQ(NET_ORB_GetLastErrorDetail(), "") << "of the last failure, not of an older one";
}

TEST_F(SdkSim, UserIDsAreBoundedAndReusedLate)
{
    std::set<int> users;
    int user = 0;
    while ((user = NET_ORB_Login(&info_)) >= 0) {
        ASSERT_TRUE(users.insert(user).second) << "given out twice: " << user;
    }
    EXPECT_EQ(NET_ORB_GetLastError(), NET_ORB_MAX_USERNUM);
    EXPECT_EQ(users.size(), 512U);
    for (const int each : users) {
        EXPECT_NE(NET_ORB_Logout(each), 0);
    }
    const int first = NET_ORB_Login(&info_);
    NET_ORB_Logout(first);
    const int second = NET_ORB_Login(&info_);
    EXPECT_NE(first, second) << "a stale user ID must not meet a new device at once";
    NET_ORB_Logout(second);
}

TEST_F(SdkSim, ThreadsShareASessionWhileOthersLogInAndOut)
{
    const LoggedIn device(info_);
    std::vector<std::thread> threads;
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([&, t] {
            for (int i = 0; i < 50; ++i) {
                const LoggedIn own(info_);
                std::thread leaver([&] { NET_ORB_Logout(own.UserID()); });
                const Outcome raced = Ask(own.UserID(), "GET /TARN/large", "", {100});
                EXPECT_FALSE(raced.success);
                leaver.join();
                EXPECT_EQ(Ask(device.UserID(), "GET /TARN/nothing").error, NET_ORB_NOSUPPORT);
                EXPECT_EQ(Ask(device.UserID(), "GET /TARN/large", "", {100}).error,
                          NET_ORB_BUFFER_TOO_SMALL);
                EXPECT_TRUE(Ask(device.UserID(), "GET /TARN/large", "", {20'000}).answer == kLarge);
                EXPECT_EQ(NET_ORB_SDKChannelToTARN(device.UserID(), t % 2 ? 1 : 33, 1),
                          t % 2 ? 1 : 7);
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

/// Runs `work` on several threads that begin at once; each gets its number.
template <class Work>
void Together(Work work)
{
    std::barrier start(4);
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&start, &work, t] {
            start.arrive_and_wait();
            work(t);
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

TEST(SessionTest, EachIdIsOfOneSessionHoweverManyComeAndGo)
{
    auto& table = PelNet::SessionTable::Instance();
    const auto staying = std::make_shared<PelNet::Session>(nullptr);
    std::vector<int> taken(PelNet::SessionTable::kCapacity - 8);
    std::ranges::generate(taken, [&] { return table.Add(staying); });
    std::atomic<int> wrong{0};
    std::array<std::shared_ptr<PelNet::Session>, 4> sessions;
    Together([&](int thread) {
        const auto& own = sessions[static_cast<std::size_t>(thread)] =
            std::make_shared<PelNet::Session>(nullptr);
        for (int i = 0; i < 300'000; ++i) {
            const int id = table.Add(own);
            // Most of the few IDs left belong to the other threads.
            const auto other = table.Find(PelNet::SessionTable::kCapacity - 1 - i % 8);
            wrong += table.Find(id) != own || table.Remove(id) != own ? 1 : 0;
        }
    });
    EXPECT_EQ(wrong, 0);
    // While the threads run, one may still hold another's that it found.
    for (const auto& own : sessions) {
        EXPECT_EQ(own.use_count(), 1);
    }
    for (const int id : taken) {
        EXPECT_EQ(table.Remove(id), staying);
    }
}

TEST(SessionTest, LearnsChannelsFromManyThreadsUpToABound)
{
    constexpr int kChannels = 1000;
    for (int round = 0; round < 100; ++round) {
        PelNet::Session session(nullptr);
        Together([&](int mode) {
            for (int channel = 0; channel < kChannels; ++channel) {
                session.LearnChannel(channel, mode, channel);
                static_cast<void>(session.KnownChannel(channel, 1));
            }
        });
        for (int channel = 0; channel < kChannels; ++channel) {
            ASSERT_EQ(session.KnownChannel(channel, channel % 4), channel);
        }
        for (int channel = 0; channel < kChannels; ++channel) {
            session.LearnChannel(channel, 4, channel);
        }
        EXPECT_EQ(session.KnownChannel(kChannels - 1, 4), std::nullopt) << "no end of memory";
    }
}

TEST_F(SdkSim, EveryErrorNumberHasAText)
{
    for (const unsigned error :
         {0U,  1U,  2U,  3U,  4U,  7U,  8U,  9U,   10U,  11U,  17U,  23U,   24U,  29U,
          41U, 43U, 52U, 73U, 74U, 75U, 76U, 147U, 148U, 149U, 150U, 1000U, 1001U}) {
        EXPECT_STRNE(NET_ORB_GetErrorText(error), "unknown error") << error;
    }
    EXPECT_STREQ(NET_ORB_GetErrorText(4711), "unknown error");
}
