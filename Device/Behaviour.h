// What a device does: each behaviour answers one family of requests.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <stdexcept>

#include "Device/message/ParsedRequest.h"

namespace Device
{

/// A profile's state document makes no sense; the text says why.
struct StateFault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Answers one family of requests. May be called from any number of threads at once, so it guards
/// its own state.
class Behaviour
{
public:
    virtual ~Behaviour() = default;
    Behaviour(const Behaviour&) = delete;
    Behaviour& operator=(const Behaviour&) = delete;

    /// The answer, or nothing if the request belongs to another behaviour.
    virtual std::optional<Response> Answer(const ParsedRequest& request) = 0;

protected:
    Behaviour() = default;
};

}  // namespace Device
