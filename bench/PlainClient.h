// A client that fetches documents with libcurl and nothing else.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include <curl/curl.h>

namespace Bench
{

/// What one side needed.
struct Need
{
    double exchanges = 0;
    double connections = 0;
};

/// Fetches one document again and again, and keeps its connection as long as it lives.
class PlainClient
{
public:
    /// Appends what it fetches to `kept`, or counts it only when that is null.
    PlainClient(const std::string& url, const char* user, const std::string& password,
                std::string* kept = nullptr)
        : kept_(kept)
    {
        CURL* const curl = handle_.get();
        curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
        curl_easy_setopt(curl, CURLOPT_PROXY, "");
        curl_easy_setopt(curl, CURLOPT_HTTPAUTH, CURLAUTH_DIGEST);
        curl_easy_setopt(curl, CURLOPT_USERNAME, user);
        curl_easy_setopt(curl, CURLOPT_PASSWORD, password.c_str());
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &PlainClient::OnBody);
        curl_easy_setopt(curl, CURLOPT_WRITEDATA, this);
        curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &PlainClient::OnHeader);
        curl_easy_setopt(curl, CURLOPT_HEADERDATA, this);
    }
    PlainClient(const PlainClient&) = delete;
    PlainClient& operator=(const PlainClient&) = delete;

    /// Bytes of the document; 0 when there was none.
    std::uint64_t Get()
    {
        received_ = 0;
        long status = 0;
        long connections = 0;
        const CURLcode result = curl_easy_perform(handle_.get());
        curl_easy_getinfo(handle_.get(), CURLINFO_RESPONSE_CODE, &status);
        curl_easy_getinfo(handle_.get(), CURLINFO_NUM_CONNECTS, &connections);
        need_.connections += static_cast<double>(connections);
        return result == CURLE_OK && status == 200 ? received_ : 0;
    }

    [[nodiscard]] Need Needed() const { return need_; }

private:
    static std::size_t OnBody(const char* data, std::size_t size, std::size_t count, void* self)
    {
        auto& client = *static_cast<PlainClient*>(self);
        client.received_ += size * count;
        if (client.kept_ != nullptr)
            client.kept_->append(data, size * count);
        return size * count;
    }

    static std::size_t OnHeader(const char* line, std::size_t size, std::size_t count, void* self)
    {
        if (std::string_view(line, size * count).substr(0, 5) == "HTTP/")
            static_cast<PlainClient*>(self)->need_.exchanges += 1;
        return size * count;
    }

    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> handle_{curl_easy_init(),
                                                                curl_easy_cleanup};
    std::string* kept_;
    std::uint64_t received_ = 0;
    Need need_;
};

}  // namespace Bench
