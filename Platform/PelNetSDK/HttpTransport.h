// A device on the network, reached over HTTP or HTTPS.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "PelNetSDK/HttpConnection.h"
#include "PelNetSDK/Transport.h"

namespace PelNet
{

/// A thread that asks takes an idle connection, the last used first, or opens a new one, and gives
/// it back afterwards. So a thread keeps its connection, and ended threads leave none unused.
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
