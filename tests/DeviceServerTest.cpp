// The simulated device's HTTP server, as a client on the network meets it.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/DeviceServer.h"

#include <curl/curl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <thread>
#include <vector>

using namespace std::chrono_literals;
using Device::DeviceModel;
using Device::DeviceServer;
using Device::Fault;
using Device::FaultKind;
using Device::ServerOptions;
using testing::HasSubstr;

namespace
{

// Answers every request with what was asked, so that a mixed-up answer shows.
class EchoModel : public DeviceModel
{
public:
    [[nodiscard]] std::string Name() const override { return "echo"; }
    [[nodiscard]] std::string Description() const override { return "echo"; }
    [[nodiscard]] bool CheckPassword(std::string_view user,
                                     std::string_view password) const override
    {
        return PasswordOf(user) != nullptr && *PasswordOf(user) == password;
    }
    [[nodiscard]] const std::string* PasswordOf(std::string_view user) const override
    {
        return user == "admin" ? &password_ : nullptr;
    }
    Device::Response Handle(const Device::Request& request) override
    {
        return {200, "text/plain", request.method + " " + request.target + " " + request.body};
    }

private:
    const std::string password_ = "se:cret \"x\"";
};

struct Reply
{
    CURLcode code = CURLE_OK;
    long status = 0;
    std::string headers;
    std::string body;
};

size_t Append(const char* data, size_t, size_t size, void* text)
{
    static_cast<std::string*>(text)->append(data, size);
    return size;
}

// One client with a connection of its own.
class Client
{
public:
    explicit Client(const DeviceServer& server,
                    const std::string& credentials = "admin:se:cret \"x\"")
        : url_(server.Url())
    {
        Set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_DIGEST));
        const size_t colon = credentials.find(':');
        Set(CURLOPT_USERNAME, credentials.substr(0, colon).c_str());
        Set(CURLOPT_PASSWORD, credentials.substr(colon + 1).c_str());
        Set(CURLOPT_TIMEOUT_MS, 20000L);
        Set(CURLOPT_NOSIGNAL, 1L);
        Set(CURLOPT_PROXY, "");
    }
    ~Client() { curl_easy_cleanup(curl_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    template <class Value>
    void Set(CURLoption option, Value value)
    {
        curl_easy_setopt(curl_, option, value);
    }

    Reply Get(const std::string& target) { return Send("GET", target, nullptr); }

    Reply Send(const char* method, const std::string& target, const std::string* body)
    {
        Reply reply;
        Set(CURLOPT_URL, (url_ + target).c_str());
        Set(CURLOPT_CUSTOMREQUEST, method);
        if (body != nullptr) {
            Set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body->size()));
            Set(CURLOPT_POSTFIELDS, body->c_str());
        }
        Set(CURLOPT_WRITEFUNCTION, &Append);
        Set(CURLOPT_WRITEDATA, static_cast<void*>(&reply.body));
        Set(CURLOPT_HEADERFUNCTION, &Append);
        Set(CURLOPT_HEADERDATA, static_cast<void*>(&reply.headers));
        reply.code = curl_easy_perform(curl_);
        curl_easy_getinfo(curl_, CURLINFO_RESPONSE_CODE, &reply.status);
        return reply;
    }

private:
    CURL* curl_ = curl_easy_init();
    const std::string url_;
};

std::unique_ptr<DeviceServer> StartServer(ServerOptions options = {})
{
    std::string error;
    auto server = DeviceServer::Start(std::make_shared<EchoModel>(), std::move(options), error);
    EXPECT_NE(server, nullptr) << error;
    return server;
}

ServerOptions WithFault(Fault fault)
{
    ServerOptions options;
    options.faults = {std::move(fault)};
    return options;
}

size_t CountOf(const std::string& text, const std::string& part)
{
    size_t count = 0;
    for (size_t at = 0; (at = text.find(part, at)) != std::string::npos; at += part.size()) {
        ++count;
    }
    return count;
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

TEST(DeviceServer, DigestAdmitsOnlyTheRightPassword)
{
    const auto server = StartServer();
    struct Case
    {
        const char* credentials;
        long status;
    };
    for (const Case& tried : {Case{"admin:se:cret \"x\"", 200}, Case{"admin:wrong", 401},
                              Case{"admin:", 401}, Case{"nobody:se:cret \"x\"", 401}}) {
        Client client(*server, tried.credentials);
        EXPECT_EQ(client.Get("/x").status, tried.status) << tried.credentials;
    }
    Client basic(*server);
    basic.Set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC));
    const Reply reply = basic.Get("/x");
    EXPECT_EQ(reply.status, 401);
    EXPECT_THAT(reply.body, HasSubstr("<subStatusCode>unauthorized</subStatusCode>"));
    EXPECT_THAT(reply.headers, HasSubstr("algorithm=SHA-256"));
    EXPECT_THAT(reply.headers, HasSubstr("algorithm=MD5"));
}

TEST(DeviceServer, AReplayedAnswerToAChallengeIsStale)
{
    const auto server = StartServer();
    Client client(*server);
    std::string sent;
    client.Set(CURLOPT_VERBOSE, 1L);
    client.Set(CURLOPT_DEBUGDATA, static_cast<void*>(&sent));
    client.Set(
        CURLOPT_DEBUGFUNCTION, +[](CURL*, curl_infotype kind, char* data, size_t size, void* text) {
            if (kind == CURLINFO_HEADER_OUT) {
                static_cast<std::string*>(text)->append(data, size);
            }
            return 0;
        });
    ASSERT_EQ(client.Get("/x").status, 200);
    const size_t from = sent.find("Authorization: Digest");
    ASSERT_NE(from, std::string::npos);
    const std::string header = sent.substr(from, sent.find("\r\n", from) - from);

    const auto replay = [&](const std::string& target, const std::string& line) {
        Client thief(*server);
        thief.Set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_NONE));
        curl_slist* headers = curl_slist_append(nullptr, line.c_str());
        thief.Set(CURLOPT_HTTPHEADER, headers);
        Reply reply = thief.Get(target);
        curl_slist_free_all(headers);
        return reply;
    };
    const Reply again = replay("/x", header);
    EXPECT_EQ(again.status, 401);
    EXPECT_THAT(again.headers, HasSubstr("stale=true"));
    // For another target the answer is simply wrong.
    const Reply other = replay("/y", header);
    EXPECT_EQ(other.status, 401);
    EXPECT_EQ(CountOf(other.headers, "stale=true"), 0u);
    for (const char* broken :
         {"Authorization: Digest", "Authorization: Digest ,,,=", "Authorization: Digest nc=\"",
          "Authorization: Digest username=\"admin\", username=\"admin\"",
          "Authorization: Bearer x"}) {
        EXPECT_EQ(replay("/x", broken).status, 401) << broken;
    }
}

TEST(DeviceServer, AnOldNonceIsRenewedWithoutAskingForThePassword)
{
    ServerOptions options;
    options.nonceLifetime = 50ms;
    const auto server = StartServer(std::move(options));
    Client client(*server);
    ASSERT_EQ(client.Get("/x").status, 200);
    std::this_thread::sleep_for(100ms);
    const Reply reply = client.Get("/x");
    EXPECT_EQ(reply.status, 200);
    EXPECT_THAT(reply.headers, HasSubstr("stale=true"));
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

TEST(DeviceServer, TlsIsTrustedByItsOwnCertificateOnly)
{
    ServerOptions options;
    options.tls = true;
    const auto server = StartServer(std::move(options));
    const std::string pem = server->CertificatePem();
    {
        Client client(*server);
        EXPECT_EQ(client.Get("/x").code, CURLE_PEER_FAILED_VERIFICATION);
    }
    Client client(*server);
    const curl_blob trusted{const_cast<char*>(pem.data()), pem.size(), CURL_BLOB_COPY};
    client.Set(CURLOPT_CAINFO_BLOB, &trusted);
    EXPECT_EQ(client.Get("/x").status, 200);
    EXPECT_EQ(client.Get("/y").body, "GET /y ");
}

TEST(DeviceServer, RefusesToStartOnWhatCannotWork)
{
    const auto refused = [](ServerOptions options) {
        std::string error;
        EXPECT_EQ(DeviceServer::Start(std::make_shared<EchoModel>(), std::move(options), error),
                  nullptr);
        return error;
    };
    ServerOptions options;
    options.address = "localhost";
    EXPECT_THAT(refused(options), HasSubstr("numeric"));
    const auto server = StartServer();
    options = {};
    options.port = server->Port();
    EXPECT_THAT(refused(options), HasSubstr("cannot listen"));
    options = {};
    options.tls = true;
    options.certificatePem = "no certificate";
    EXPECT_THAT(refused(options), HasSubstr("belong together"));
    options.keyPem = "no key";
    EXPECT_THAT(refused(options), HasSubstr("certificate"));
    EXPECT_THAT(refused(WithFault({.kind = FaultKind::Drip})), HasSubstr("bytes"));
    EXPECT_THAT(refused(WithFault({.kind = FaultKind::Refuse, .subStatusCode = "x"})),
                HasSubstr("no refusal"));
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
        // curl takes a second challenge without stale=true for a wrong password.
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

TEST(DeviceServer, StopsWithinASecondWhileConnectionsDripAndWait)
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
    std::this_thread::sleep_for(200ms);
    const auto start = std::chrono::steady_clock::now();
    server->Stop();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 1s);
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(server->FaultCounts(), (std::vector<std::uint64_t>{1, 2, 1}));
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
    const std::string endless(50000, 'x');
    EXPECT_NE(client.Send("PUT", "/x", &endless).status, 200);
}

}  // namespace
