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

#include "PelNetSDK/AnswerHead.h"
#include "PelNetSDK/Exchange.h"
#include "PelNetSDK/HttpSettings.h"

namespace PelNet
{

/// Used by one thread at a time. The handle is never reset: it keeps the connection and the
/// device's challenge, so that authentication costs one exchange in all.
class HttpConnection
{
public:
    /// `cancelled` outlives the connection. Throws std::bad_alloc, and std::invalid_argument if a
    /// setting is unacceptable.
    HttpConnection(const HttpSettings& settings, const std::atomic<bool>& cancelled);

    using Clock = std::chrono::steady_clock;

    /// As Transport::Exchange, but ends at the deadline. After an answer of 401 the connection must
    /// not be used again, for libcurl misreads the next challenge. A request other than GET reaches
    /// the device once at most, unless the device answers it with a challenge.
    unsigned Exchange(const TransportRequest& request, TransportAnswer& answer,
                      Clock::time_point deadline);

    /// Whether the device has challenged this connection, so that requests carry credentials.
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
    void SetRequest(const TransportRequest& request);
    unsigned Judge(CURLcode code);
    [[nodiscard]] bool TakeChallenge(TransportAnswer& answer);
    [[nodiscard]] std::string WhyNoLogin() const;
    [[nodiscard]] std::string HintOf(const TransportAnswer& answer) const;
    [[nodiscard]] int Status() const;
    [[nodiscard]] bool TakeBody(const char* bytes, std::size_t count);
    [[nodiscard]] bool TakeHeader(std::string_view line);

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
    const bool isSecure_;
    const bool basicAllowed_;
    long scheme_ = CURLAUTH_NONE;  ///< chosen from the device's challenge

    // Of the transfer in progress.
    TransportAnswer* answer_ = nullptr;
    unsigned stopped_ = kNotStopped;
    const char* whyStopped_ = nullptr;  ///< for a person, if the number does not tell
    bool isComplete_ = false;  ///< stopped on purpose: the rest of the answer is not wanted
    bool repeatable_ = true;
    bool unanswered_ = false;
    int requestsSent_ = 0;
    AnswerHead head_;

    std::unique_ptr<CURL, Closer> handle_;
};

}  // namespace PelNet
