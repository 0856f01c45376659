// Who the simulated device's server lets in: digest authentication and TLS.
// SPDX-License-Identifier: Apache-2.0
#include <openssl/ssl.h>

#include <chrono>
#include <thread>

#include "support/DeviceServerClient.h"

using namespace std::chrono_literals;
using testing::HasSubstr;
using namespace TestSupport;

namespace
{

TEST(DeviceAccess, DigestAdmitsOnlyTheRightPassword)
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

TEST(DeviceAccess, AReplayedAnswerToAChallengeIsStale)
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
    EXPECT_THAT(elsewhere.headers, testing::Not(HasSubstr("stale=true")));
    for (const char* broken :
         {"Authorization: Digest", "Authorization: Digest ,,,=", "Authorization: Digest nc=\"",
          "Authorization: Digest username=\"admin\", username=\"admin\"",
          "Authorization: Bearer x"}) {
        EXPECT_EQ(replay("/x", broken).status, 401) << broken;
    }
}

TEST(DeviceAccess, AnOldNonceIsRenewedWithoutAskingForThePassword)
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

TEST(DeviceAccess, TlsIsTrustedByItsOwnCertificateOnly)
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

TEST(DeviceAccess, TlsBefore12IsRefused)
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

TEST(DeviceAccess, ClientsCannotRenegotiate)
{
    ServerOptions options;
    options.tls = true;
    const auto server = StartServer(std::move(options));
    const RawConnection connection(*server, "");
    const std::unique_ptr<SSL_CTX, void (*)(SSL_CTX*)> context(SSL_CTX_new(TLS_client_method()),
                                                               &SSL_CTX_free);
    ASSERT_EQ(SSL_CTX_set_max_proto_version(context.get(), TLS1_2_VERSION), 1);
    const std::unique_ptr<SSL, void (*)(SSL*)> tls(SSL_new(context.get()), &SSL_free);
    ASSERT_EQ(SSL_set_fd(tls.get(), connection.Socket()), 1);
    ASSERT_EQ(SSL_connect(tls.get()), 1);
    ASSERT_EQ(SSL_renegotiate(tls.get()), 1);
    EXPECT_NE(SSL_do_handshake(tls.get()), 1);
}

TEST(DeviceAccess, RefusesABodyBeforeItIsSent)
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

}  // namespace
