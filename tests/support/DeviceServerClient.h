// Clients of the simulated device's HTTP server, and a model that echoes requests.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <arpa/inet.h>
#include <curl/curl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <utility>

#include "Device/http/DeviceServer.h"

namespace TestSupport
{

using Device::DeviceModel;
using Device::DeviceServer;
using Device::ServerOptions;

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

inline size_t Append(const char* data, size_t, size_t size, void* text)
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

inline std::unique_ptr<DeviceServer> StartServer(ServerOptions options = {})
{
    std::string error;
    auto server = DeviceServer::Start(std::make_shared<EchoModel>(), std::move(options), error);
    EXPECT_NE(server, nullptr) << error;
    return server;
}

inline std::string StartError(ServerOptions options)
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
    [[nodiscard]] int Socket() const { return socket_; }
    /// Waits for the end of the connection.
    void ReadToEnd() const { static_cast<void>(ReadUntil("never sent")); }

private:
    int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
};

}  // namespace TestSupport
