// One kept-alive HTTP connection to a device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <curl/curl.h>

#include <array>
#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "PelNetSDK/HttpSettings.h"
#include "PelNetSDK/Transport.h"

namespace PelNet
{

/// Used by one thread at a time. The handle is never reset: it keeps the connection and what the
/// device's challenge told, so that authentication costs one exchange in all.
class HttpConnection
{
public:
    /// `cancelled` outlives the connection. Throws std::bad_alloc.
    HttpConnection(const HttpSettings& settings, const std::atomic<bool>& cancelled);

    using Clock = std::chrono::steady_clock;

    /// As Transport::Exchange, over at the deadline. An answer of 401 is final: the connection is
    /// of no use afterwards, for libcurl misreads the next challenge. A request other than GET
    /// reaches the device once at most, save that a device which answers it with a challenge is
    /// sent it again.
    unsigned Exchange(const TransportRequest& request, TransportAnswer& answer,
                      Clock::time_point deadline);

    /// Whether the device has challenged this connection, and its requests carry the answer.
    [[nodiscard]] bool KnowsChallenge() const { return scheme_ != CURLAUTH_NONE; }

private:
    /// Why a callback ended the transfer, as an error number.
    static constexpr unsigned kNotStopped = 0;

    template <class Value>
    void Set(CURLoption option, Value value);
    void SetTransport(const HttpSettings& settings);
    void SetSocket();
    void SetCredentials(const HttpSettings& settings);
    void SetCallbacks();

    unsigned Perform(const TransportRequest& request, TransportAnswer& answer,
                     Clock::time_point deadline);
    unsigned Judge(CURLcode code);
    [[nodiscard]] bool TakeChallenge();

    static std::size_t OnBody(const char* bytes, std::size_t, std::size_t count, void* self);
    static std::size_t OnHeader(const char* bytes, std::size_t, std::size_t count, void* self);
    static int OnProgress(void* self, curl_off_t, curl_off_t, curl_off_t, curl_off_t);
    static int OnRequest(void* self, char*, char*, int, int);

    struct Closer
    {
        void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    };

    std::array<char, CURL_ERROR_SIZE> detail_{};
    const std::string base_;
    const std::function<int()> openSocket_;
    const std::atomic<bool>& cancelled_;
    const bool hasCredentials_;
    const bool basicAllowed_;
    long scheme_ = CURLAUTH_NONE;  ///< chosen from the device's challenge

    // Of the transfer under way.
    TransportAnswer* answer_ = nullptr;
    unsigned stopped_ = kNotStopped;
    bool repeatable_ = true;
    bool unanswered_ = false;
    int requestsSent_ = 0;
    std::size_t headerBytes_ = 0;

    std::unique_ptr<CURL, Closer> handle_;
};

}  // namespace PelNet
