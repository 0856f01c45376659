// Logins of the portable SDK to scripted servers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

#include "support/ScriptedServer.h"
#include "support/SdkCalls.h"

namespace TestSupport
{

inline const std::string kDigest =
    "WWW-Authenticate: Digest realm=\"device\", nonce=\"n1\", qop=\"auth\", algorithm=MD5\r\n";
inline bool Holds(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}

/// A server that requires a digest, accepts any, and sends long headers.
inline ScriptedServer::Script Digest(std::string body)
{
    return [body = std::move(body)](const std::string& request, int) {
        return Reply{Holds(request, "Authorization: Digest")
                         ? HttpAnswer(200, body, "X-More: " + std::string(4000, 'x') + "\r\n")
                         : HttpAnswer(401, "", kDigest)};
    };
}

class SdkHttp : public testing::Test
{
protected:
    /// Devices are not reached through the environment's proxy.
    SdkHttp() { setenv("http_proxy", "http://127.0.0.1:1", 1); }

    /// How to log in to the server, which outlives the result.
    const tagNET_ORB_LOGIN_INFO& At(const ScriptedServer& server)
    {
        address_ = server.Address();
        info_.address = address_.c_str();
        info_.connectTimeout = 20'000;
        return info_;
    }
    void UsePassword()
    {
        info_.userName = "admin";
        info_.password = "secret-1";
    }
    unsigned LoginError(const ScriptedServer& server)
    {
        const int user = NET_ORB_Login(&At(server));
        if (user < 0) {
            return NET_ORB_GetLastError();
        }
        NET_ORB_Logout(user);
        return 0;
    }

    std::string address_;
    tagNET_ORB_LOGIN_INFO info_{};
};

inline std::size_t CountOf(const ScriptedServer& server, const char* part)
{
    const std::vector<std::string> requests = server.Requests();
    return static_cast<std::size_t>(
        std::ranges::count_if(requests, [&](const auto& each) { return Holds(each, part); }));
}

}  // namespace TestSupport
