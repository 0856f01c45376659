// How one device is reached.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PelNetSDK/Exchange.h"

namespace PelNet
{

/// A transport may be used by any number of threads at once.
class Transport
{
public:
    Transport() = default;
    Transport(const Transport&) = delete;
    Transport& operator=(const Transport&) = delete;
    virtual ~Transport() = default;

    /// Sends one request. NET_ORB_NOERROR whenever an answer came, refusals included;
    /// NET_ORB_ANSWER_TOO_LARGE with the beginning of the body if it is larger than its limit;
    /// otherwise the number of what went wrong on the way. Throws std::bad_alloc.
    virtual unsigned Exchange(const TransportRequest& request, TransportAnswer& answer) = 0;

    /// Ends running and later exchanges with NET_ORB_CANCELLED, without waiting for them, and wipes
    /// the password.
    virtual void Cancel() noexcept = 0;
};

}  // namespace PelNet
