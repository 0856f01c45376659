// The connections of one session over HTTP.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/HttpTransport.h"

#include <fstream>
#include <new>
#include <utility>

namespace PelNet
{

namespace
{

struct UrlCloser
{
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
};
using Url = std::unique_ptr<CURLU, UrlCloser>;

/// Whether libcurl could do it; throws std::bad_alloc when there was no memory.
bool Done(CURLUcode code)
{
    return code != CURLUE_OUT_OF_MEMORY ? code == CURLUE_OK : throw std::bad_alloc();
}

std::optional<std::string> UrlPart(const Url& url, CURLUPart part)
{
    char* text = nullptr;
    if (!Done(curl_url_get(url.get(), part, &text, 0))) {
        return std::nullopt;
    }
    const std::unique_ptr<char, decltype(&curl_free)> owner(text, &curl_free);
    return std::string(text);
}

std::string Text(const char* text)
{
    return text == nullptr ? std::string() : std::string(text);
}

}  // namespace

std::optional<HttpSettings> ReadHttpSettings(const tagNET_ORB_LOGIN_INFO& info)
{
    const Url url(curl_url());
    if (!url) {
        throw std::bad_alloc();
    }
    if (!Done(curl_url_set(url.get(), CURLUPART_URL, info.address, 0))) {
        return std::nullopt;
    }
    const std::string scheme = UrlPart(url, CURLUPART_SCHEME).value_or("");
    const bool bare = UrlPart(url, CURLUPART_PATH).value_or("/") == "/" &&
                      !UrlPart(url, CURLUPART_QUERY) && !UrlPart(url, CURLUPART_FRAGMENT) &&
                      !UrlPart(url, CURLUPART_USER) && !UrlPart(url, CURLUPART_PASSWORD);
    std::optional<std::string> base = UrlPart(url, CURLUPART_URL);
    if ((scheme != "http" && scheme != "https") || !bare || !base) {
        return std::nullopt;
    }
    HttpSettings settings;
    settings.base = base->ends_with('/') ? base->substr(0, base->size() - 1) : *base;
    settings.secure = scheme == "https";
    settings.certificateFile = Text(info.certificateFile);
    if (!settings.certificateFile.empty() && !std::ifstream(settings.certificateFile)) {
        return std::nullopt;
    }
    settings.user = Text(info.userName);
    settings.password = Secret(info.password == nullptr ? "" : info.password);
    settings.trustAnyCertificate = info.trustAnyCertificate != 0;
    settings.allowBasic = info.allowBasic != 0;
    if (info.connectTimeout > 0) {
        settings.connectTimeout = std::chrono::milliseconds(info.connectTimeout);
    }
    if (info.receiveTimeout > 0) {
        settings.receiveTimeout = std::chrono::milliseconds(info.receiveTimeout);
    }
    return settings;
}

HttpTransport::HttpTransport(HttpSettings settings) : settings_(std::move(settings))
{
    static const CURLcode initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (initialised != CURLE_OK) {
        throw std::bad_alloc();
    }
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
        // A device that restarted has forgotten its nonce; the password may still be right.
        connection = Make();
        if (!connection) {
            return NET_ORB_CANCELLED;
        }
        answer.body.Clear();
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
    // The password is wiped by then.
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
    // The exchange succeeded all the same; the next one opens a connection of its own.
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
