// What a device does: small classes that each answer one family of requests, with state or without.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include "Device/ParsedRequest.h"
#include "Device/Profile.h"

namespace Device
{

/// A profile's state document makes no sense; the text says what is wrong.
struct StateFault : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

/// Answers one family of requests. Called from any number of threads at once: a behaviour guards
/// its own state.
class Behaviour
{
public:
    virtual ~Behaviour() = default;
    Behaviour(const Behaviour&) = delete;
    Behaviour& operator=(const Behaviour&) = delete;

    /// The answer, or nothing when the request is none of this behaviour's.
    virtual std::optional<Response> Answer(const ParsedRequest& request) = 0;

protected:
    Behaviour() = default;
};

/// The behaviours of a device with that profile, in the order in which they are asked. They refer
/// to the profile. Throws StateFault.
std::vector<std::unique_ptr<Behaviour>> MakeBehaviours(const Profile& profile);

std::unique_ptr<Behaviour> MakeContentSearch(const Profile& profile);
std::unique_ptr<Behaviour> MakeSettings(const Profile& profile);

/// A refusal when the request's body does not keep the limits of the answer's values.
std::optional<Response> RefuseBadValues(const Answer& answer, const ParsedRequest& request);
// Null when the profile holds no such state.
std::unique_ptr<Behaviour> MakeAlarmHost(const Profile& profile);
std::unique_ptr<Behaviour> MakeSearchTasks(const Profile& profile);

/// A refusal when the request's body is neither XML nor JSON.
std::optional<Response> RefuseMalformed(const ParsedRequest& request);

/// The document with each "{channel}" replaced by the channel.
std::string FillIn(const Answer& answer, int channel);

}  // namespace Device
