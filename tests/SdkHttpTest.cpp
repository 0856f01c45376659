// The portable SDK over HTTP, against servers that answer byte for byte as scripted.
// SPDX-License-Identifier: Apache-2.0
#include <gmock/gmock.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "support/SdkHttp.h"

namespace
{

using namespace std::chrono_literals;
using namespace TestSupport;
using testing::HasSubstr;
using testing::StartsWith;
using Then = Reply::Then;

/// Answers the login's question, and leaves everything else to the script.
ScriptedServer::Script AfterLogin(ScriptedServer::Script script)
{
    return [script = std::move(script)](const std::string& request, int number) {
        return Holds(request, "/TARN/SDK/channels/") ? Reply{HttpAnswer(200, "1")}
                                                     : script(request, number);
    };
}

}  // namespace

TEST_F(SdkHttp, RequestLineTravelsAsItStandsAndSmugglesNothing)
{
    const ScriptedServer server(
        AfterLogin([](const auto&, int) { return Reply{HttpAnswer(200, "x")}; }));
    const LoggedIn device(At(server));
    struct Case
    {
        std::string line;
        std::string wire;  ///< empty: refused, and nothing is sent
    };
    const std::vector<Case> cases = {
        {"GET /TARN/a?format=json\r\n", "GET /TARN/a?format=json HTTP/1.1\r\n"},
        {"/TARN/a", "GET /TARN/a HTTP/1.1\r\n"},
        {"DELETE /TARN/a\r\n", "DELETE /TARN/a HTTP/1.1\r\n"},
        {"PUT /TARN/a b<c>\"d\"#e", "PUT /TARN/a%20b%3Cc%3E%22d%22%23e HTTP/1.1\r\n"},
        {"POST /TARN/%41%zz%4", "POST /TARN/%41%25zz%254 HTTP/1.1\r\n"},
        {"GET /TARN/\xC3\xA9\x01\x7F", "GET /TARN/%C3%A9%01%7F HTTP/1.1\r\n"},
        {"GET /TARN/../x//./y?a=b?c&d={}", "GET /TARN/../x//./y?a=b?c&d=%7B%7D HTTP/1.1\r\n"},
        {"GET /a HTTP/1.0\r\n", "GET /a%20HTTP/1.0 HTTP/1.1\r\n"},
        {std::string("GET /TARN/a\0/b\r\nX: y", 20), "GET /TARN/a HTTP/1.1\r\n"},
        {"GET /TARN/a\r\nEvil: 1\r\n", ""},
        {"GET /TARN/a\n/b", ""},
        {"GET /a\r\n\r\n", ""},
        {"GET TARN/a\r\n", ""},
        {"GET  /two", ""},
        {"HEAD /TARN/a\r\n", ""},
        {"GET http://elsewhere/", ""},
        {"GET ", ""},
        {"\r\n", ""},
    };
    for (const Case& c : cases) {
        const std::size_t before = server.Requests().size();
        const Outcome outcome = Ask(device.UserID(), c.line, "");
        const std::vector<std::string> requests = server.Requests();
        if (c.wire.empty()) {
            EXPECT_EQ(outcome.error, NET_ORB_PARAMETER_ERROR) << c.line;
            EXPECT_EQ(requests.size(), before) << c.line;
        } else {
            ASSERT_EQ(requests.size(), before + 1) << c.line;
            EXPECT_THAT(requests.back(), StartsWith(c.wire));
        }
    }
    // So large that libcurl would ask first by default.
    Ask(device.UserID(), "PUT /TARN/a?format=json", std::string(2'000'000, ' ') + "{}");
    EXPECT_THAT(server.Requests().back(), HasSubstr("Content-Type: application/json"));
    EXPECT_EQ(CountOf(server, "Expect:"), 0U);
    EXPECT_EQ(CountOf(server, "Authorization:"), 0U);
    EXPECT_EQ(CountOf(server, "Accept-Encoding: identity"), server.Requests().size());
}

TEST_F(SdkHttp, ChannelMapOfNonsenseIsAnError)
{
    std::string answer = "1";
    int status = 200;
    const ScriptedServer server(
        [&](const auto&, int) { return Reply{HttpAnswer(status, answer)}; });
    const LoggedIn device(At(server));
    for (const auto& [text, error] : std::vector<std::pair<std::string, unsigned>>{
             {"<html/>", NET_ORB_NETWORK_ERRORDATA},
             {"", NET_ORB_NETWORK_ERRORDATA},
             {"99999999999", NET_ORB_NETWORK_ERRORDATA},
             {std::string(5000, '1'), NET_ORB_NETWORK_ERRORDATA},
             {"-1", NET_ORB_CHANNEL_ERROR}}) {
        answer = text;
        EXPECT_EQ(NET_ORB_SDKChannelToTARN(device.UserID(), 1, 1), -1) << text.substr(0, 20);
        EXPECT_EQ(NET_ORB_GetLastError(), error) << text.substr(0, 20);
    }
    for (const auto& [code, error] :
         {std::pair(404, NET_ORB_NOSUPPORT), {431, NET_ORB_DEVICE_REFUSED}}) {
        status = code;
        EXPECT_EQ(NET_ORB_SDKChannelToTARN(device.UserID(), 1, 1), -1) << code;
        EXPECT_EQ(NET_ORB_GetLastError(), error) << "a refusal keeps its own number";
    }
    status = 200;
    answer = "7\r\n";
    EXPECT_EQ(NET_ORB_SDKChannelToTARN(device.UserID(), 1, 1), 7);
}

TEST_F(SdkHttp, RefusalsKeepTheirReason)
{
    struct Case
    {
        int status;
        std::string body;
        unsigned error;
        int modelCode;
        int deviceCode = 0;
    };
    const auto xml = [](const std::string& sub, const std::string& code) {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ResponseStatus version=\"2.0\" "
               "xmlns=\"urn:device\"><requestURL>/a</requestURL><statusCode>4</statusCode>"
               "<subStatusCode>" +
               sub + "</subStatusCode><errorCode>" + code + "</errorCode></ResponseStatus>";
    };
    const std::string manyAttributes = [] {
        std::string text = "<ResponseStatus";
        for (int i = 0; i < 200'000; ++i) {
            text += " a" + std::to_string(i) + "=''";
        }
        return text + "/>";
    }();
    const std::vector<Case> cases = {
        {400, xml("badParameters", "1048577"), NET_ORB_DEVICE_REFUSED, 0x100001},
        {400, xml("badParameters", " 0x100002 "), NET_ORB_DEVICE_REFUSED, 0x100002},
        {400, xml("badParameters", "none"), NET_ORB_DEVICE_REFUSED, 0},
        {500, "{\"statusCode\": 3, \"errorCode\": 2097153}", NET_ORB_DEVICE_REFUSED, 0x200001},
        {500, "{\"ResponseStatus\": {\"errorCode\": \"2097153\"}}", NET_ORB_DEVICE_REFUSED,
         0x200001},
        {403, xml("notSupport", "4194305"), NET_ORB_NOSUPPORT, 0x400001},
        {403, xml("lowPrivilege", "1"), NET_ORB_NOENOUGHPRI, 1},
        {400, xml("invalidChannel", "5"), NET_ORB_CHANNEL_ERROR, 5},
        {400,
         "<ResponseStatus><errorCode>9</errorCode><MErrDevSelfEx>12</MErrDevSelfEx>"
         "</ResponseStatus>",
         NET_ORB_DEVICE_REFUSED, 9, 12},
        {404, "gone", NET_ORB_NOSUPPORT, 0},
        {405, "", NET_ORB_NOSUPPORT, 0},
        {501, "", NET_ORB_NOSUPPORT, 0},
        {503, "", NET_ORB_DEVICE_BUSY, 0},
        {429, "", NET_ORB_DEVICE_BUSY, 0},
        {300, "", NET_ORB_NETWORK_ERRORDATA, 0},
        {500, std::string(200, '{'), NET_ORB_DEVICE_REFUSED, 0},
        {500, "<!DOCTYPE r [<!ENTITY e SYSTEM 'file:///etc/passwd'>]>" + xml("&e;", "7"),
         NET_ORB_DEVICE_REFUSED, 0},
        {500, manyAttributes, NET_ORB_DEVICE_REFUSED, 0},
    };
    std::atomic<std::size_t> current{0};
    const ScriptedServer server(AfterLogin([&](const auto&, int) {
        return Reply{HttpAnswer(cases[current].status, cases[current].body)};
    }));
    const LoggedIn device(At(server));
    for (; current < cases.size(); ++current) {
        const Case& c = cases[current];
        const Outcome outcome = Ask(device.UserID(), "GET /TARN/a");
        const std::string label = c.body.substr(0, 200);
        EXPECT_EQ(outcome.error, c.error) << c.status << ' ' << label;
        EXPECT_EQ(outcome.modelCode, c.modelCode) << c.status << ' ' << label;
        EXPECT_EQ(outcome.deviceCode, c.deviceCode) << c.status << ' ' << label;
        EXPECT_EQ(outcome.status, c.body.substr(0, 512));
        EXPECT_EQ(outcome.returnedSize, std::min<std::size_t>(512, c.body.size()));
    }
}

TEST_F(SdkHttp, BrokenAnswersEndInTimeWithTheirOwnNumbers)
{
    struct Case
    {
        const char* name;
        Reply reply;
        unsigned error;
    };
    const std::string head = "HTTP/1.1 200 OK\r\n";
    const auto many = [](const std::string& text) {
        std::string all;
        while (all.size() < 300'000) {
            all += text;
        }
        return all;
    };
    const std::vector<Case> cases = {
        {"silence", {HttpAnswer(200, "x"), Then::KeepOpen, 60s}, NET_ORB_NETWORK_RECV_TIMEOUT},
        {"interim answers", {many("HTTP/1.1 100 Continue\r\n\r\n")}, NET_ORB_NETWORK_ERRORDATA},
        {"headers", {head + many("X: y\r\n")}, NET_ORB_NETWORK_ERRORDATA},
        {"folded headers", {head + "X: y\r\n" + many(" z\r\n")}, NET_ORB_NETWORK_ERRORDATA},
        {"one header", {head + "X: " + std::string(300'000, 'x')}, NET_ORB_NETWORK_ERRORDATA},
        {"trailers",
         {head + "Transfer-Encoding: chunked\r\n\r\n0\r\n" + many("X: y\r\n")},
         NET_ORB_NETWORK_ERRORDATA},
        {"compressed",
         {HttpAnswer(200, "x", "content-encoding: GZIP\r\n")},
         NET_ORB_NETWORK_ERRORDATA},
        {"compressed chunks",
         {head + "Transfer-Encoding: gzip, gzip, chunked\r\n\r\n"},
         NET_ORB_NETWORK_ERRORDATA},
        {"no answer", {"", Then::Close}, NET_ORB_NETWORK_RECV_ERROR},
        {"bad chunk",
         {head + "Transfer-Encoding: chunked\r\n\r\nzz\r\n", Then::Close},
         NET_ORB_NETWORK_ERRORDATA},
        {"no HTTP", {"SSH-2.0-device\r\n", Then::Close}, NET_ORB_NETWORK_ERRORDATA},
    };
    for (const Case& c : cases) {
        const ScriptedServer server(AfterLogin([&](const auto&, int) { return c.reply; }));
        info_.receiveTimeout = c.error == NET_ORB_NETWORK_RECV_TIMEOUT ? 400 : 60'000;
        const LoggedIn device(At(server));
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_EQ(Ask(device.UserID(), "POST /TARN/a").error, c.error)
            << c.name << ": " << NET_ORB_GetLastErrorDetail();
        EXPECT_STRNE(NET_ORB_GetLastErrorDetail(), "") << c.name;
        EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s) << c.name;
        EXPECT_EQ(CountOf(server, "POST /TARN/a"), 1U) << c.name << ": carried out once";
    }
}

TEST_F(SdkHttp, AnswersBeyondTheirLimitAreNeitherReadNorAskedForTwice)
{
    const std::string head = "HTTP/1.1 200 OK\r\n";
    std::string size;
    const ScriptedServer server(AfterLogin([&](const std::string& request, int) {
        return Holds(request, "deviceAbility/") ? Reply{head + "\r\n" + std::string(1'100'000, 'x')}
               : Holds(request, "stdAbility/")  ? Reply{head + "Content-Length: 17000000\r\n\r\nx"}
               : Holds(request, "refused")
                   ? Reply{"HTTP/1.1 500 E\r\n\r\n" + std::string(100'000, 'x')}
                   : Reply{head + "Content-Length: " + size + "\r\n\r\nx"};
    }));
    const LoggedIn device(At(server));
    const int user = device.UserID();
    for (const unsigned bytes : {8192U, 16384U, 81920U}) {
        EXPECT_EQ(AskDeviceAbility(user, 1, "", bytes).error, NET_ORB_BUFFER_TOO_SMALL);
        EXPECT_EQ(AskStandardAbility(user, 1, 1, bytes).error, NET_ORB_BUFFER_TOO_SMALL);
    }
    EXPECT_EQ(CountOf(server, "Ability/"), 6U) << "each question drops what was kept of the other";
    EXPECT_EQ(Ask(user, "GET /refused").status, std::string(512, 'x'));

    size = "17000000";
    const auto ask = [user](const char* line, unsigned bytes) {
        const Outcome outcome = Ask(user, line, "", {bytes, 0, 300});
        EXPECT_FALSE(outcome.success);
        return std::pair(outcome.error, outcome.returnedSize);
    };
    const auto tooSmall = [](unsigned needed) {
        return std::pair(NET_ORB_BUFFER_TOO_SMALL, needed);
    };
    EXPECT_EQ(ask("GET /a", 16'384), tooSmall(17'000'000));
    EXPECT_EQ(ask("GET /a", 16'384'000), tooSmall(17'000'000));
    EXPECT_EQ(CountOf(server, "GET /a"), 1U) << "the device is not asked in between";
    EXPECT_EQ(ask("GET /a", 17'000'000).first, NET_ORB_NETWORK_RECV_TIMEOUT) << "it would fit";
    EXPECT_EQ(ask("PUT /a", 16'384), tooSmall(0));
    EXPECT_EQ(ask("PUT /a", 17'000'000), tooSmall(0));
    EXPECT_EQ(CountOf(server, "PUT /a"), 1U) << "a change is carried out once";
    size = "1048576001";
    EXPECT_EQ(ask("GET /b", 16'384), tooSmall(0)) << "no buffer is large enough";
    EXPECT_EQ(ask("GET /c", 1'048'576).first, NET_ORB_ANSWER_TOO_LARGE);
}

TEST_F(SdkHttp, OwnReceiveTimeoutReplacesTheSessions)
{
    const ScriptedServer server(AfterLogin([](const auto&, int) {
        return Reply{HttpAnswer(200, "x"), Then::KeepOpen, 600ms};
    }));
    info_.receiveTimeout = 100;
    const LoggedIn impatient(At(server));
    EXPECT_EQ(Ask(impatient.UserID(), "GET /a").error, NET_ORB_NETWORK_RECV_TIMEOUT);
    EXPECT_EQ(Ask(impatient.UserID(), "GET /a", "", {10, 0, 20'000}).answer, "x");
}

TEST_F(SdkHttp, KeptConnectionThatBreaksRepeatsOnlyQuestions)
{
    // Half of the requests find their connection closed under them.
    std::atomic<bool> breaks{true};
    const ScriptedServer server(AfterLogin([&](const auto&, int) {
        return breaks.exchange(false) ? Reply{"", Then::Close} : Reply{HttpAnswer(200, "x")};
    }));
    const LoggedIn device(At(server));
    EXPECT_EQ(Ask(device.UserID(), "GET /a").answer, "x") << "asked again on a new connection";
    breaks = true;
    EXPECT_EQ(Ask(device.UserID(), "PUT /a", "<a/>").error, NET_ORB_NETWORK_RECV_ERROR);
    EXPECT_EQ(CountOf(server, "PUT /a"), 1U) << "whether it was carried out is unknown";
    EXPECT_EQ(Ask(device.UserID(), "PUT /a", "<a/>").answer, "x");
}

TEST_F(SdkHttp, LogoutEndsRunningRequests)
{
    std::atomic<int> asked{0};
    const ScriptedServer server(AfterLogin([&](const auto&, int) {
        ++asked;
        return Reply{HttpAnswer(200, "x"), Then::KeepOpen, 60s};
    }));
    info_.receiveTimeout = 60'000;
    const int user = NET_ORB_Login(&At(server));
    ASSERT_GE(user, 0);
    std::vector<std::thread> threads;
    std::atomic<int> cancelled{0};
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back(
            [&] { cancelled += Ask(user, "GET /a").error == NET_ORB_CANCELLED ? 1 : 0; });
    }
    while (asked < 4) {
        std::this_thread::sleep_for(5ms);
    }
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_NE(NET_ORB_Logout(user), 0);
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(cancelled, 4);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, 20s);
    EXPECT_EQ(Ask(user, "GET /a").error, NET_ORB_NOINIT);
}

TEST_F(SdkHttp, ThreadsShareASessionEachOnItsOwnConnection)
{
    const ScriptedServer server(Digest("12345678"));
    UsePassword();
    const LoggedIn device(At(server));
    std::vector<std::thread> threads;
    std::atomic<int> good{0};
    for (int t = 0; t < 8; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 25; ++i) {
                const bool tooSmall =
                    Ask(device.UserID(), "POST /a", "<a/>", {4}).error == NET_ORB_BUFFER_TOO_SMALL;
                const bool grown =
                    Ask(device.UserID(), "POST /a", "<a/>", {8}).answer == "12345678";
                good += tooSmall && grown ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(good, 200);
    EXPECT_LE(server.Connections(), 8);
    EXPECT_LE(server.Requests().size(), 2U + 7U + 200U) << "a challenge for each connection";
}
