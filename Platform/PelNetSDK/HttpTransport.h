// A device on the network, reached over HTTP or HTTPS.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <vector>

#include "PelNetSDK/HttpConnection.h"
#include "PelNetSDK/Login.h"

namespace PelNet
{

/// The settings for "http://host[:port]" or "https://host[:port]"; nothing when the address is no
/// such thing, carries credentials, a path or a query, or the certificate file cannot be read.
[[nodiscard]] std::optional<HttpSettings> ReadHttpSettings(const tagNET_ORB_LOGIN_INFO& info);

/// Each thread that asks has a connection of its own meanwhile; afterwards it waits for the next
/// asker, the last used first. So a thread keeps its connection, and ended threads leave none
/// behind unused.
class HttpTransport : public Transport
{
public:
    explicit HttpTransport(HttpSettings settings);

    unsigned Exchange(const TransportRequest& request, TransportAnswer& answer) override;
    void Cancel() noexcept override;

private:
    /// An idle connection or a new one; null once cancelled.
    [[nodiscard]] std::unique_ptr<HttpConnection> Take();
    [[nodiscard]] std::unique_ptr<HttpConnection> Make();
    void GiveBack(std::unique_ptr<HttpConnection> connection) noexcept;

    std::atomic<bool> cancelled_{false};
    std::mutex mutex_;
    HttpSettings settings_;
    std::vector<std::unique_ptr<HttpConnection>> idle_;
};

}  // namespace PelNet
