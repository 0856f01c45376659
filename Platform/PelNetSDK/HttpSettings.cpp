// Reading the settings of a login over HTTP.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/HttpSettings.h"

#include <curl/curl.h>

#include <fstream>
#include <memory>
#include <new>

namespace PelNet
{

namespace
{

struct UrlCloser
{
    void operator()(CURLU* url) const { curl_url_cleanup(url); }
};
using Url = std::unique_ptr<CURLU, UrlCloser>;

/// Whether libcurl succeeded. Throws std::bad_alloc if it ran out of memory.
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

void InitialiseHttp()
{
    static const CURLcode initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (initialised != CURLE_OK) {
        throw std::bad_alloc();
    }
}

}  // namespace PelNet
