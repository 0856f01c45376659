// A bare libcurl client: the cost of fetching a document without the library.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <curl/curl.h>

namespace Bench
{

/// Fetches documents over one kept connection, with digest authentication.
class PlainClient
{
public:
    PlainClient(std::string url, const char* user, const std::string& password,
                const std::string& certificateFile = {})
        : url_(std::move(url))
    {
        CURL* const curl = handle_.get();
        curl_easy_setopt(curl, CURLOPT_PROXY, "");
        curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(curl, CURLOPT_HTTPAUTH, CURLAUTH_DIGEST);
        curl_easy_setopt(curl, CURLOPT_USERNAME, user);
        curl_easy_setopt(curl, CURLOPT_PASSWORD, password.c_str());
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &PlainClient::OnBody);
        curl_easy_setopt(curl, CURLOPT_WRITEDATA, &body_);
        curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &PlainClient::OnHeader);
        curl_easy_setopt(curl, CURLOPT_HEADERDATA, &exchanges_);
        if (!certificateFile.empty()) {
            curl_easy_setopt(curl, CURLOPT_CAINFO, certificateFile.c_str());
        }
    }

    /// The document at a path, empty if there is none; a post sends an empty body.
    const std::string& Fetch(const char* path, bool post = false)
    {
        CURL* const curl = handle_.get();
        body_.clear();
        curl_easy_setopt(curl, CURLOPT_URL, (url_ + path).c_str());
        curl_easy_setopt(curl, post ? CURLOPT_POST : CURLOPT_HTTPGET, 1L);
        if (post) {
            curl_easy_setopt(curl, CURLOPT_COPYPOSTFIELDS, "");
        }
        const CURLcode result = curl_easy_perform(curl);
        long status = 0;
        curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
        long connections = 0;
        curl_easy_getinfo(curl, CURLINFO_NUM_CONNECTS, &connections);
        connections_ += connections;
        if (result != CURLE_OK || status != 200) {
            body_.clear();
        }
        return body_;
    }

    [[nodiscard]] long Exchanges() const { return exchanges_; }
    [[nodiscard]] long Connections() const { return connections_; }

private:
    static std::size_t OnBody(const char* data, std::size_t size, std::size_t count, void* into)
    {
        static_cast<std::string*>(into)->append(data, size * count);
        return size * count;
    }

    static std::size_t OnHeader(const char* line, std::size_t size, std::size_t count, void* into)
    {
        if (std::string_view(line, size * count).starts_with("HTTP/")) {
            *static_cast<long*>(into) += 1;
        }
        return size * count;
    }

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle_{curl_easy_init(),
                                                                curl_easy_cleanup};
    std::string url_;
    std::string body_;
    long exchanges_ = 0;
    long connections_ = 0;
};

}  // namespace Bench
