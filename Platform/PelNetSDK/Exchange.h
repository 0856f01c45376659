// One request to a device and its answer.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "PelNetSDK/AnswerBody.h"
#include "PelNetSDK/ErrorNumbers.h"
#include "PelNetSDK/Limits.h"
#include "PelNetSDK/RequestLine.h"

namespace PelNet
{

/// The body is borrowed for the exchange.
struct TransportRequest
{
    RequestLine line;
    std::string_view body;
    unsigned receiveTimeout = 0;  ///< milliseconds for the whole answer, 0: the session's

    [[nodiscard]] bool IsGet() const { return line.method == "GET"; }
};

struct TransportAnswer
{
    /// `largest`: the largest body of a 2xx answer, in bytes.
    explicit TransportAnswer(std::size_t largest)
        : limit(largest), body(std::max(largest, limits::kRefusal))
    {
    }

    /// What became of a piece of the body.
    enum class Taken
    {
        Whole,
        AsRefusal,  ///< a refusal's limit is reached: the answer is complete without the rest
        TooLarge    ///< the answer is larger than its limit
    };

    /// Appends a piece of the body. `status` must be set. Throws std::bad_alloc.
    [[nodiscard]] Taken Take(const char* bytes, std::size_t count);
    /// Takes the whole body at once, without copying it.
    [[nodiscard]] Taken Take(std::string&& whole);

    [[nodiscard]] bool IsSuccess() const { return status >= 200 && status < 300; }
    /// Forgets the body, for the next attempt.
    void Clear() noexcept
    {
        body.Clear();
        hint.clear();
    }

    const std::size_t limit;
    int status = 0;  ///< HTTP status
    AnswerBody body;
    std::uint64_t announcedSize = 0;  ///< of the body, as the device announced it; 0: unknown
    bool passwordChecked = false;     ///< the device accepted the credentials
    unsigned loginError = NET_ORB_PASSWORD_ERROR;  ///< what a status of 401 amounts to
    std::string hint;  ///< about a refusal: what a person should know; may be empty
};

}  // namespace PelNet
