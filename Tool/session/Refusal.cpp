// A device that refused a request, with the status document it sent.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/Refusal.h"

#include <utility>

#include "Tool/record/Document.h"
#include "Tool/record/JsonOutput.h"

namespace Tool
{

std::string TaskHint(const std::string& task)
{
    if (task.empty()) {
        return {};
    }
    const bool isWord = task.find_first_not_of(
                            "0123456789abcdefghijklmnopqrstuvwxyz"
                            "ABCDEFGHIJKLMNOPQRSTUVWXYZ-_") == std::string::npos;
    std::string quoted = isWord ? task : "'";
    for (const char c : isWord ? std::string_view() : std::string_view(task)) {
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    }
    return "; continue it with --task " + quoted + (isWord ? "" : "'");
}

std::string Told(const Refusal& refusal)
{
    std::string status;
    for (const auto& [name, text] : ReadStatus(refusal.document)) {
        status += (status.empty() ? "; the device says: " : ", ") + name + " " + text;
    }
    SdkFailure failure = refusal.failure;
    if (!status.empty()) {
        // The detail only repeats the code in that document.
        failure.detail.clear();
    }
    return Told(failure) + status + (refusal.hint.empty() ? Hint(failure) : refusal.hint) +
           TaskHint(refusal.task);
}

void AddToJson(Json::Value& value, const Refusal& refusal)
{
    value["error"] = ErrorToJson(refusal.failure);
    if (!refusal.task.empty()) {
        value["task"] = refusal.task;
    }
    Json::Value& status = value["status"] = Json::Value(Json::objectValue);
    for (const auto& [name, text] : ReadStatus(refusal.document)) {
        const bool number = name == "statusCode" || name == "errorCode";
        Json::Value read;
        status[name] =
            number && ReadJson(text, read) && read.isIntegral() ? read : Json::Value(text);
    }
}

DeviceFailure::DeviceFailure(const std::string& what, Refusal refusal)
    : Failure(what + ": " + Told(refusal)), refusal_(std::move(refusal))
{
}

}  // namespace Tool
