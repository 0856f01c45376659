// How to reach a device over HTTP or HTTPS.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

#include "PelNetSDK/Login.h"
#include "PelNetSDK/Secret.h"

namespace PelNet
{

struct HttpSettings
{
    std::string base;  ///< "http://host:port" or "https://host:port"
    bool secure = false;
    std::string user;
    Secret password;
    std::string certificateFile;  ///< PEM file of trusted certificates, empty: the system's
    bool trustAnyCertificate = false;
    bool allowBasic = false;
    std::chrono::milliseconds connectTimeout{NET_ORB_DEFAULT_CONNECT_TIMEOUT};
    std::chrono::milliseconds receiveTimeout{NET_ORB_DEFAULT_RECEIVE_TIMEOUT};
    /// Opens a socket that is already connected, -1 on failure; empty: TCP to `base`.
    std::function<int()> openSocket;
};

/// The settings of a login to "http://host[:port]" or "https://host[:port]". Nothing if the address
/// has another form, carries credentials, a path or a query, or if the certificate file cannot be
/// opened. Throws std::bad_alloc.
[[nodiscard]] std::optional<HttpSettings> ReadHttpSettings(const tagNET_ORB_LOGIN_INFO& info);

/// Prepares libcurl once in the process. Throws std::bad_alloc.
void InitialiseHttp();

}  // namespace PelNet
