// The connections of one session over HTTP.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/HttpTransport.h"

#include <new>
#include <utility>

#include "PelNetSDK/ErrorNumbers.h"

namespace PelNet
{

HttpTransport::HttpTransport(HttpSettings settings) : settings_(std::move(settings))
{
    InitialiseHttp();
}

unsigned HttpTransport::Exchange(const TransportRequest& request, TransportAnswer& answer)
{
    const auto timeout = request.receiveTimeout > 0
                             ? std::chrono::milliseconds(request.receiveTimeout)
                             : settings_.receiveTimeout;
    const HttpConnection::Clock::time_point deadline = HttpConnection::Clock::now() + timeout;
    std::unique_ptr<HttpConnection> connection = Take();
    if (!connection) {
        return NET_ORB_CANCELLED;
    }
    const bool knewChallenge = connection->KnowsChallenge();
    const auto challenged = [&](unsigned result) {
        return result == NET_ORB_NOERROR && answer.status == 401;
    };
    unsigned error = connection->Exchange(request, answer, deadline);
    if (challenged(error) && knewChallenge) {
        // A restarted device has forgotten its nonce. The password may still be right.
        connection = Make();
        if (!connection) {
            return NET_ORB_CANCELLED;
        }
        answer.Clear();
        error = connection->Exchange(request, answer, deadline);
    }
    if (!challenged(error) && error != NET_ORB_PASSWORD_ERROR) {
        GiveBack(std::move(connection));
    }
    return error;
}

std::unique_ptr<HttpConnection> HttpTransport::Take()
{
    {
        const std::lock_guard lock(mutex_);
        if (!idle_.empty()) {
            auto connection = std::move(idle_.back());
            idle_.pop_back();
            return connection;
        }
    }
    return Make();
}

std::unique_ptr<HttpConnection> HttpTransport::Make()
{
    const std::lock_guard lock(mutex_);
    // By then the password has been wiped.
    if (cancelled_) {
        return nullptr;
    }
    return std::make_unique<HttpConnection>(settings_, cancelled_);
}

void HttpTransport::GiveBack(std::unique_ptr<HttpConnection> connection) noexcept
try {
    const std::lock_guard lock(mutex_);
    if (!cancelled_) {
        idle_.push_back(std::move(connection));
    }
} catch (const std::bad_alloc&) {
    // The exchange succeeded all the same. The next one opens its own connection.
}

void HttpTransport::Cancel() noexcept
{
    cancelled_ = true;
    std::vector<std::unique_ptr<HttpConnection>> idle;
    {
        const std::lock_guard lock(mutex_);
        idle.swap(idle_);
        settings_.password.Wipe();
    }
}

}  // namespace PelNet
