// The simulated device's HTTP server, as a client on the network meets it.
// SPDX-License-Identifier: Apache-2.0
#include <atomic>
#include <chrono>
#include <mutex>
#include <thread>
#include <vector>

#include "support/DeviceServerClient.h"

using namespace std::chrono_literals;
using Device::Fault;
using Device::FaultKind;
using testing::HasSubstr;
using namespace TestSupport;

namespace
{

ServerOptions WithFault(Fault fault)
{
    ServerOptions options;
    options.faults = {std::move(fault)};
    return options;
}

TEST(DeviceServer, HandsTargetAndBodyToTheModel)
{
    const auto server = StartServer();
    Client client(*server);
    EXPECT_EQ(client.Get("/TARN/arm/%3C1%3E/a%3Fb?ways=%3Caway%3E&format=json").body,
              "GET /TARN/arm/<1>/a%3Fb?ways=%3Caway%3E&format=json ");
    const std::string body(300000, 'b');
    EXPECT_EQ(client.Send("PUT", "/x", &body).body, "PUT /x " + body);
}

TEST(DeviceServer, SixteenClientsAtOnceGetTheirOwnAnswers)
{
    std::atomic<int> logged = 0;
    ServerOptions options;
    options.log = [&](const Device::ServedRequest&) { ++logged; };
    const auto server = StartServer(std::move(options));
    std::atomic<int> bad = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 16; ++i) {
        threads.emplace_back([&, i] {
            Client client(*server);
            for (int k = 0; k < 50; ++k) {
                const std::string target = "/t" + std::to_string(i * 1000 + k);
                const Reply reply = client.Get(target);
                bad += reply.status != 200 || reply.body != "GET " + target + " ";
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(bad, 0);
    server->Stop();
    // One more for the challenge that each client answers first.
    EXPECT_EQ(logged, 16 * 51);
}

TEST(DeviceServer, SaysWhyItCannotStart)
{
    const auto server = StartServer();
    ServerOptions tls;
    tls.tls = true;
    const auto other = StartServer(tls);
    tls.certificatePem = other->CertificatePem();
    ServerOptions noKey = tls;
    noKey.keyPem = "no key";
    ServerOptions noCertificate = noKey;
    noCertificate.certificatePem = "no certificate";
    const std::pair<ServerOptions, const char*> cases[] = {
        {{.address = "localhost"}, "not a numeric address"},
        {{.port = server->Port()}, "another program is using this port"},
        {{.address = "192.0.2.1"}, "this machine does not have this address"},
        {tls, "needs its key"},
        {noKey, "not a PEM key"},
        {noCertificate, "not a PEM certificate"},
        {WithFault({.kind = FaultKind::Drip}), "bytes"},
        {WithFault({.kind = FaultKind::Refuse, .subStatusCode = "x"}), "no refusal"},
    };
    for (const auto& [options, part] : cases) {
        EXPECT_THAT(StartError(options), HasSubstr(part));
    }
}

TEST(DeviceServer, ListensOnItsPortAgainAtOnce)
{
    auto server = StartServer();
    Client client(*server);
    ASSERT_EQ(client.Get("/x").status, 200);
    ServerOptions same;
    same.port = server->Port();
    // The server ends the connection first, so its side stays in TIME_WAIT.
    server.reset();
    EXPECT_NE(StartServer(same), nullptr);
}

TEST(DeviceServer, SlowClientsKeepNobodyOutAndAreDroppedInTheEnd)
{
    ServerOptions crowded;
    crowded.maxConnections = 4;
    const auto small = StartServer(crowded);
    std::vector<RawConnection> slow;
    for (int i = 0; i < 20; ++i) {
        slow.emplace_back(*small, "GET / HTTP/1.1\r\nHost:");
    }
    EXPECT_EQ(Client(*small).Get("/x").status, 200);

    ServerOptions impatient;
    impatient.headerTimeout = 50ms;
    impatient.bodyTimeout = 50ms;
    const auto server = StartServer(impatient);
    RawConnection(*server, "GET / HTTP/1.1\r\nHost:").ReadToEnd();
    RawConnection(*server, "PUT / HTTP/1.1\r\nHost: x\r\nContent-Length: 9\r\n\r\nx").ReadToEnd();
}

TEST(DeviceServer, AnswersHeadAndTellsAllowedMethods)
{
    const auto server = StartServer();
    Client client(*server);
    EXPECT_THAT(client.Send("DELETE", "/x", nullptr).headers, HasSubstr("Allow: GET, HEAD, PUT\r"));
    client.Set(CURLOPT_NOBODY, 1L);
    const Reply head = client.Send("HEAD", "/x", nullptr);
    EXPECT_EQ(head.status, 200);
    EXPECT_EQ(head.body, "");
    EXPECT_THAT(head.headers, HasSubstr("Content-Length: 7\r"));
}

struct FaultCase
{
    const char* name;
    Fault fault;
    CURLcode code;
    long status;
    const char* body;  // a part of it
    std::uint64_t counts = 1;
};

class DeviceServerFault : public testing::TestWithParam<FaultCase>
{
};

TEST_P(DeviceServerFault, StrikesOnceUnderItsPrefixAndNowhereElse)
{
    const FaultCase& tried = GetParam();
    Fault fault = tried.fault;
    fault.pathPrefix = "/struck";
    fault.times = 1;
    const auto server = StartServer(WithFault(fault));
    Client client(*server);
    EXPECT_EQ(client.Get("/spared").body, "GET /spared ");
    EXPECT_EQ(server->FaultCounts(), std::vector<std::uint64_t>{0});
    // On a connection that was used before, curl would ask again after a reset.
    client.Set(CURLOPT_FRESH_CONNECT, 1L);
    const auto start = std::chrono::steady_clock::now();
    const Reply reply = client.Get("/struck/by/it");
    EXPECT_EQ(reply.code, tried.code) << curl_easy_strerror(reply.code);
    EXPECT_EQ(reply.status, tried.status);
    EXPECT_THAT(reply.body, HasSubstr(tried.body));
    if (fault.interval > 0ms) {
        EXPECT_GE(std::chrono::steady_clock::now() - start, fault.interval);
    }
    EXPECT_EQ(client.Get("/struck/by/it").body, "GET /struck/by/it ");
    EXPECT_EQ(server->FaultCounts(), std::vector<std::uint64_t>{tried.counts});
}

constexpr const char* kEcho = "GET /struck/by/it ";

INSTANTIATE_TEST_SUITE_P(
    Each, DeviceServerFault,
    testing::Values(
        FaultCase{"Delay", {.kind = FaultKind::Delay, .interval = 80ms}, CURLE_OK, 200, kEcho},
        FaultCase{
            "Drip", {.kind = FaultKind::Drip, .interval = 20ms, .bytes = 4}, CURLE_OK, 200, kEcho},
        FaultCase{"Truncate",
                  {.kind = FaultKind::Truncate, .bytes = 5},
                  CURLE_PARTIAL_FILE,
                  200,
                  "GET /"},
        FaultCase{"TruncateBehindTheEnd",
                  {.kind = FaultKind::Truncate, .bytes = 1000},
                  CURLE_OK,
                  200,
                  kEcho,
                  0},
        FaultCase{"Stall",
                  {.kind = FaultKind::Stall, .interval = 150ms, .bytes = 5},
                  CURLE_PARTIAL_FILE,
                  200,
                  "GET /"},
        FaultCase{"StaleNonce", {.kind = FaultKind::StaleNonce}, CURLE_OK, 200, "GET /struck/by"},
        FaultCase{"TruncateAtOnce", {.kind = FaultKind::Truncate}, CURLE_PARTIAL_FILE, 200, ""},
        FaultCase{"Reset", {.kind = FaultKind::Reset}, CURLE_RECV_ERROR, 0, ""},
        // curl takes a second challenge without stale=true as "wrong password".
        FaultCase{"Unauthorized", {.kind = FaultKind::Unauthorized}, CURLE_OK, 401, "unauthorized"},
        FaultCase{"ServerError",
                  {.kind = FaultKind::ServerError, .httpStatus = 502},
                  CURLE_OK,
                  502,
                  "<html>"},
        FaultCase{"Oversize",
                  {.kind = FaultKind::Oversize, .bytes = 1 << 20},
                  CURLE_OK,
                  200,
                  "GET /struck/by/it                                "},
        FaultCase{"Refuse",
                  {.kind = FaultKind::Refuse, .subStatusCode = "deviceBusy"},
                  CURLE_OK,
                  503,
                  "<subStatusCode>deviceBusy</subStatusCode>"}),
    [](const auto& tested) { return std::string(tested.param.name); });

TEST(DeviceServer, StopsWhileConnectionsDripAndWait)
{
    std::mutex mutex;
    std::vector<Device::ServedRequest> log;
    ServerOptions options;
    options.authentication = false;
    options.faults = {{.kind = FaultKind::Drip, .pathPrefix = "/drip", .interval = 1h, .bytes = 1},
                      {.kind = FaultKind::Delay, .pathPrefix = "/delay", .interval = 1h},
                      {.kind = FaultKind::Stall, .pathPrefix = "/stall", .bytes = 2}};
    options.log = [&](const Device::ServedRequest& served) {
        const std::lock_guard lock(mutex);
        log.push_back(served);
    };
    const auto server = StartServer(std::move(options));
    std::vector<std::thread> threads;
    for (const char* target : {"/drip", "/delay", "/stall", "/delay"}) {
        threads.emplace_back([&server, target] {
            Client client(*server);
            EXPECT_NE(client.Get(target).code, CURLE_OK) << target;
        });
    }
    Client idle(*server);
    EXPECT_EQ(idle.Get("/kept/alive").status, 200);
    const std::vector<std::uint64_t> all = {1, 2, 1};
    while (server->FaultCounts() != all) {
        std::this_thread::yield();
    }
    server->Stop();
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(log.size(), 5u);
    EXPECT_EQ(log.front().method + log.front().target, "GET/kept/alive");
    EXPECT_EQ(log.front().bytes, std::string("GET /kept/alive ").size());
}

TEST(DeviceServer, ABodyBeyondTheLimitIsRefusedAndNotKept)
{
    ServerOptions options;
    options.maxBody = 1000;
    const auto server = StartServer(std::move(options));
    Client client(*server);
    const std::string fits(1000, 'x');
    EXPECT_EQ(client.Send("PUT", "/x", &fits).status, 200);
    const std::string tooLong(1500, 'x');
    const Reply refused = client.Send("PUT", "/x", &tooLong);
    EXPECT_EQ(refused.status, 413);
    EXPECT_THAT(refused.body, HasSubstr("bodyTooLarge"));
    const std::string large(4u << 20, 'x');
    EXPECT_EQ(client.Send("PUT", "/x", &large).status, 413);
}

}  // namespace
