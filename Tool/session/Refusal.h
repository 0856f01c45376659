// A device that refused a request, with the status document it sent.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "Tool/Failure.h"
#include "Tool/session/SdkFailure.h"

namespace Tool
{

struct Refusal
{
    SdkFailure failure;
    std::string document;   ///< the device's status document, or what it sent instead
    std::string task = {};  ///< a task that continues in the device all the same; may be empty
    std::string hint = {};  ///< what the user can do, after a semicolon; empty: the error's own
};

/// How to continue a task: "; continue it with --task 12", or "".
std::string TaskHint(const std::string& task);

/// "error 29: the device refused the request; the device says: statusCode 4, ...", with a hint.
std::string Told(const Refusal& refusal);

/// Adds "error", and as an object "status" with the members that the device sent.
void AddToJson(Json::Value& value, const Refusal& refusal);

/// Ends a command that the device refused or failed.
class DeviceFailure : public Failure
{
public:
    /// `what` names the request as a person knows it: "alarm arm at sim:alarmhost".
    DeviceFailure(const std::string& what, Refusal refusal);

    [[nodiscard]] const Refusal& Why() const { return refusal_; }

private:
    Refusal refusal_;
};

}  // namespace Tool
