// Data packages arrive whole and in one exchange, or not at all.
// SPDX-License-Identifier: Apache-2.0
#include <algorithm>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include "CapabilitySet/JsonTARN/JsonConfig/JsonConfigApp.h"
#include "Device/search/Package.h"
#include "PelNetSDK/AnswerBody.h"
#include "support/DeviceSteps.h"
#include "support/ScriptedServer.h"

namespace
{

using namespace CapabilitySet;
using namespace std::chrono_literals;
using Device::FaultKind;
using TestSupport::Asked;
using TestSupport::HttpAnswer;
using TestSupport::Reply;
using TestSupport::Road;
using Then = Reply::Then;

ON_EVERY_ROAD(PackageTest);

/// The result of a download.
struct Fetched
{
    bool success = false;
    unsigned error = 0;
    std::string bytes;
    bool isUntouched = false;  ///< the caller's structure is unchanged
};

template <class Call>
Fetched Fetch(Call call)
{
    char mark = 0;
    tagNET_ORB_XML_CONFIG_OUTPUT before{};
    std::memset(&before, 0x5a, sizeof before);
    before.outBuffer = &mark;
    tagNET_ORB_XML_CONFIG_OUTPUT out = before;
    Fetched fetched;
    fetched.success = call(out, fetched.error);
    fetched.isUntouched = std::memcmp(&out, &before, sizeof out) == 0;
    if (out.outBuffer != &mark) {
        const std::unique_ptr<char[]> package(static_cast<char*>(out.outBuffer));
        fetched.bytes.assign(package.get(), out.returnedSize);
    }
    return fetched;
}

/// Downloads the package of a task (GET) or of the search of that name (POST).
Fetched FetchTask(int user, const std::string& task)
{
    return Fetch([&](auto& out, unsigned& error) {
        return JsonConfigApp::GetHFPDDataPackage(out, task, error, user);
    });
}

Fetched FetchSearch(int user, const std::string& name)
{
    CaptureSearchDescription description;
    description.searchID = name;
    return Fetch([&](auto& out, unsigned& error) {
        return JsonConfigApp::GetFCDataPackageByJson(description, out, error, user);
    });
}

TEST_P(PackageTest, ArrivesWholeInOneExchangeWhateverItsSize)
{
    const Asked recorder = Login("recorder");
    struct Case
    {
        Fetched (*fetch)(int, const std::string&);
        const char* name;
        std::size_t size;
    };
    for (const Case& c : {Case{FetchTask, "pkg-40", 40},
                          {FetchTask, "pkg-1M", 1 << 20},
                          {FetchTask, "14", 50 << 20},
                          {FetchSearch, "pkg-9M", 9 << 20}}) {
        const auto before = TestSupport::Statistics().exchanges;
        const Fetched fetched = c.fetch(recorder, c.name);
        EXPECT_EQ(fetched.bytes.size(), c.size) << c.name;
        EXPECT_TRUE(fetched.success && Device::IsWholePackage(fetched.bytes)) << c.name;
        EXPECT_EQ(TestSupport::Statistics().exchanges - before, 1U) << c.name;
    }
    for (const char* task : {"13", "pkg-2G"}) {  // unfinished; larger than any buffer
        const Fetched refused = FetchTask(recorder, task);
        EXPECT_TRUE(!refused.success && refused.isUntouched && refused.error != 0) << task;
    }
}

TEST_P(PackageTest, ReportsProgressToTheThreadThatAsked)
{
    using Parts = std::vector<std::pair<unsigned long long, unsigned long long>>;
    const Asked recorder = Login("recorder");
    Parts heard;
    NET_ORB_SetReceiveProgress(
        [](unsigned long long received, unsigned long long total, void* to) {
            static_cast<Parts*>(to)->emplace_back(received, total);
        },
        &heard);
    EXPECT_TRUE(FetchTask(recorder, "pkg-1M").success);
    NET_ORB_SetReceiveProgress(nullptr, nullptr);
    ASSERT_FALSE(heard.empty());
    EXPECT_EQ(heard.back(), std::pair(1ULL << 20, 1ULL << 20));
    EXPECT_TRUE(std::ranges::is_sorted(heard));
}

TEST_P(PackageTest, AProgressCallbackThatThrowsEndsTheRequestAndLeaksNothing)
{
    const Asked recorder = Login("recorder");
    const auto openFiles = [] {
        return std::ranges::distance(std::filesystem::directory_iterator("/proc/self/fd"));
    };
    const auto before = openFiles();
    NET_ORB_SetReceiveProgress(
        [](unsigned long long, unsigned long long, void*) { throw std::runtime_error("enough"); },
        nullptr);
    for (int i = 0; i < 5; ++i) {
        const Fetched fetched = FetchTask(recorder, "pkg-1M");
        EXPECT_TRUE(!fetched.success && fetched.isUntouched);
        EXPECT_EQ(fetched.error, NET_ORB_CALLBACK_FAILED);
        EXPECT_STREQ(NET_ORB_GetLastErrorDetail(), "enough");
    }
    NET_ORB_SetReceiveProgress(nullptr, nullptr);
    EXPECT_TRUE(FetchTask(recorder, "pkg-1M").success);
    EXPECT_LE(openFiles(), before + 5) << "connections of a server in this process";
}

TEST(PackageHttpTest, ADownloadThatStallsEndsWithTheLogout)
{
    Asked recorder(Road::Http, "recorder");
    recorder.SetFaults({{.kind = FaultKind::Drip, .interval = 60s, .bytes = 1 << 20}});
    Fetched stalled;
    const auto before = TestSupport::Statistics().exchanges;
    std::thread client([&] { stalled = FetchTask(recorder, "pkg-3M"); });
    while (TestSupport::Statistics().exchanges == before) {  // until the answer has begun
        std::this_thread::sleep_for(5ms);
    }
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_NE(NET_ORB_Logout(recorder), 0);
    client.join();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s);
    EXPECT_TRUE(!stalled.success && stalled.isUntouched);
    EXPECT_EQ(stalled.error, NET_ORB_CANCELLED);
}

std::string Chunked(const std::string& body, const std::string& end)
{
    constexpr std::size_t kChunk = 300'000;
    std::string text = "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n";
    char head[16];
    for (std::size_t at = 0; at < body.size(); at += kChunk) {
        const std::string chunk = body.substr(at, kChunk);
        std::snprintf(head, sizeof head, "%zx\r\n", chunk.size());
        text += head + chunk + "\r\n";
    }
    return text + end;
}

TEST(PackageHttpTest, EveryFormOfAnAnswerIsWholeOrAnError)
{
    const std::string body(3'000'000, 'p');
    const std::string head = "HTTP/1.1 200 OK\r\n";
    const std::string sized = HttpAnswer(200, body);
    const std::string chunked = Chunked(body, "0\r\n\r\n");
    struct Case
    {
        const char* name;
        Reply reply;
        bool isWhole;
    };
    for (const Case& c : std::vector<Case>{
             {"length", {sized}, true},
             {"length, cut", {sized.substr(0, sized.size() - 1), Then::Close}, false},
             {"length, reset", {sized.substr(0, 2'000'000), Then::Reset}, false},
             {"chunks", {chunked}, true},
             {"chunks, trailer", {Chunked(body, "0\r\nChecked: yes\r\n\r\n")}, true},
             {"chunks, cut between two", {Chunked(body, ""), Then::Close}, false},
             {"chunks, cut in one", {chunked.substr(0, 2'000'000), Then::Close}, false},
             {"chunks, end cut", {Chunked(body, "0\r\n"), Then::Close}, false},
             {"chunks, reset", {Chunked(body, ""), Then::Reset}, false},
             {"chunks, one too long", {Chunked(body, "5\r\nabc"), Then::Close}, false},
             {"until closed", {head + "\r\n" + body, Then::Close}, true},
             {"until closed, reset", {head + "\r\n" + body, Then::Reset}, false}}) {
        std::atomic<int> asked{0};
        const TestSupport::ScriptedServer server([&](const std::string& request, int) {
            const bool isPackage = request.find("/dataPackage") != std::string::npos;
            asked += isPackage ? 1 : 0;
            return isPackage ? c.reply : Reply{HttpAnswer(200, "1")};
        });
        const std::string address = server.Address();
        tagNET_ORB_LOGIN_INFO info{};
        info.address = address.c_str();
        const TestSupport::LoggedIn device(info);
        for (const auto fetch : {FetchTask, FetchSearch}) {
            asked = 0;
            const Fetched fetched = fetch(device.UserID(), "1");
            EXPECT_EQ(fetched.success, c.isWhole) << c.name;
            EXPECT_EQ(fetched.isUntouched, !c.isWhole) << c.name;
            EXPECT_TRUE(!c.isWhole || fetched.bytes == body) << c.name;
            EXPECT_EQ(fetched.error == 0, c.isWhole) << c.name;
            EXPECT_EQ(asked, 1) << c.name;
        }
    }
}

TEST(AnswerBodyTest, AnAnswerBeyondTheLimitIsNotTaken)
{
    PelNet::AnswerBody body(10);
    EXPECT_TRUE(body.Append("0123456789", 10));
    EXPECT_FALSE(body.Append("x", 1));
    EXPECT_EQ(body.Head(20), "0123456789");
    EXPECT_FALSE(body.Adopt(std::string(11, 'x')));
    EXPECT_TRUE(body.Adopt(std::string(10, 'y')));
    EXPECT_EQ(body.Size(), 10U);
}

}  // namespace
