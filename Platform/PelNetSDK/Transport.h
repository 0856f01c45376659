// The road to one device, whichever way it is reached.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

#include "PelNetSDK/AnswerBody.h"
#include "PelNetSDK/RequestLine.h"

namespace PelNet
{

/// One request; the body is borrowed for the exchange.
struct TransportRequest
{
    RequestLine line;
    std::string_view body;
    unsigned receiveTimeout = 0;  ///< milliseconds for the whole answer, 0: the session's
};

/// What the device answered.
struct TransportAnswer
{
    int status = 0;  ///< HTTP status
    AnswerBody body;
    bool passwordChecked = false;  ///< the device took the credentials before it answered
};

/// A transport may be used by any number of threads at once.
class Transport
{
public:
    Transport() = default;
    Transport(const Transport&) = delete;
    Transport& operator=(const Transport&) = delete;
    virtual ~Transport() = default;

    /// Carries out one request. NET_ORB_NOERROR whenever an answer came, refusals included;
    /// otherwise the number of what went wrong on the way. Throws std::bad_alloc.
    virtual unsigned Exchange(const TransportRequest& request, TransportAnswer& answer) = 0;

    /// Ends running and later exchanges with NET_ORB_CANCELLED, waits for none, and wipes the
    /// password.
    virtual void Cancel() noexcept = 0;
};

}  // namespace PelNet
