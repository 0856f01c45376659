// The simulated device's HTTP server, as a client on the network meets it.
// SPDX-License-Identifier: Apache-2.0
#include "Device/http/DeviceServer.h"

#include <arpa/inet.h>
#include <curl/curl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

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

// Echoes requests, so that mixed-up answers show.
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
        if (request.method == "DELETE") {
            return {405, "text/plain", "", nullptr, {"GET", "PUT"}};
        }
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

// A client with its own connection.
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

std::string StartError(ServerOptions options)
{
    std::string error;
    EXPECT_EQ(DeviceServer::Start(std::make_shared<EchoModel>(), std::move(options), error),
              nullptr);
    return error;
}

// A connection for bytes that no well-behaved client sends.
class RawConnection
{
public:
    RawConnection(const DeviceServer& server, const std::string& bytes)
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(server.Port());
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        EXPECT_EQ(connect(socket_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        EXPECT_EQ(send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL), ssize_t(bytes.size()));
    }
    RawConnection(RawConnection&& other) noexcept : socket_(std::exchange(other.socket_, -1)) {}
    RawConnection& operator=(RawConnection&&) = delete;
    ~RawConnection() { close(socket_); }

    /// Reads until the text contains `part` or the connection ends.
    [[nodiscard]] std::string ReadUntil(const std::string& part) const
    {
        std::string text;
        char block[4096];
        while (text.find(part) == std::string::npos) {
            const ssize_t count = recv(socket_, block, sizeof block, 0);
            if (count <= 0) {
                break;
            }
            text.append(block, static_cast<size_t>(count));
        }
        return text;
    }
    /// Waits for the end of the connection.
    void ReadToEnd() const { static_cast<void>(ReadUntil("never sent")); }

private:
    int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

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
    // Names of scheme, fields and algorithms are case-insensitive.
    const auto spelt = [&](const std::string& name, const std::string& otherwise) {
        std::string line = header;
        EXPECT_NE(line.find(name), std::string::npos);
        return line.replace(line.find(name), name.size(), otherwise);
    };
    for (const std::string& line : {spelt("Digest ", "dIGEST "), spelt("realm=", "Realm="),
                                    spelt("algorithm=SHA-256", "ALGORITHM=sha-256")}) {
        EXPECT_THAT(replay("/x", line).headers, HasSubstr("stale=true")) << line;
    }
    // For another target the answer is simply wrong.
    const Reply elsewhere = replay("/y", header);
    EXPECT_EQ(elsewhere.status, 401);
    EXPECT_EQ(CountOf(elsewhere.headers, "stale=true"), 0u);
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

TEST(DeviceServer, TlsBefore12IsRefused)
{
    ServerOptions options;
    options.tls = true;
    const auto server = StartServer(std::move(options));
    for (const long version : {CURL_SSLVERSION_MAX_TLSv1_1, CURL_SSLVERSION_MAX_TLSv1_2}) {
        Client client(*server);
        client.Set(CURLOPT_SSL_VERIFYPEER, 0L);
        client.Set(CURLOPT_SSL_CIPHER_LIST, "ALL:@SECLEVEL=0");
        client.Set(CURLOPT_SSLVERSION, CURL_SSLVERSION_TLSv1 | version);
        EXPECT_EQ(client.Get("/x").code == CURLE_OK, version == CURL_SSLVERSION_MAX_TLSv1_2);
    }
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

TEST(DeviceServer, RefusesABodyBeforeItIsSent)
{
    const auto start = [](unsigned size) {
        return "PUT /x HTTP/1.1\r\nHost: x\r\nExpect: 100-Continue\r\nContent-Length: " +
               std::to_string(size) + "\r\n\r\n";
    };
    const auto closed = StartServer();
    EXPECT_THAT(RawConnection(*closed, start(9)).ReadUntil("\r\n"), HasSubstr(" 401 "));
    ServerOptions options;
    options.authentication = false;
    const auto open = StartServer(options);
    EXPECT_THAT(RawConnection(*open, start(9)).ReadUntil("\r\n"), HasSubstr(" 100 "));
    EXPECT_THAT(RawConnection(*open, start(2u << 20)).ReadUntil("\r\n"), HasSubstr(" 413 "));
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
