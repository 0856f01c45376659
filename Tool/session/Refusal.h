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
    std::string document;   ///< the device's status document, or whatever came in its place
    std::string task = {};  ///< what goes on in the device all the same; empty: nothing
};

/// How a person takes a task up again, behind a semicolon: "; take it up again with --task 12".
std::string TaskHint(const std::string& task);

/// "error 29: the device refused the request; the device says: statusCode 4, ...", with a hint.
std::string Told(const Refusal& refusal);

/// Adds "error" and, as an object of the members that the device told, "status".
void AddToJson(Json::Value& value, const Refusal& refusal);

/// Ends a command that the device refused or failed.
class DeviceFailure : public Failure
{
public:
    /// `what` tells the request as a person knows it: "alarm arm at sim:alarmhost".
    DeviceFailure(const std::string& what, Refusal refusal);

    [[nodiscard]] const Refusal& Why() const { return refusal_; }

private:
    Refusal refusal_;
};

}  // namespace Tool
