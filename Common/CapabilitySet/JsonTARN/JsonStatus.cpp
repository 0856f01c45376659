// The device's response status in JSON.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonStatus.h"

#include "CapabilitySet/private/json/JsonFields.h"

namespace CapabilitySet
{

JsonStatus::JsonStatus(const std::string& text)
{
    if (!text.empty()) {
        Parse(text);
    }
}

void JsonStatus::Parse(const std::string& text)
{
    *this = JsonStatus();
    json::WithRoot(text, [this](const Json::Value& root) { json::ReadFields(*this, root); });
}

JsonErrorStatus::JsonErrorStatus(const Json::Value& value)
{
    Parse(value);
}

void JsonErrorStatus::Parse(const Json::Value& value)
{
    if (value.isNull()) {
        return;
    }
    id = std::to_string(json::MemberOf(value, "id").asInt());
    // Kept: clients rely on the kind of this member being checked, and on the value being dropped.
    static_cast<void>(json::MemberOf(value, "subStatusCode").asString());
}

void JsonErrorStatusList::Parse(const std::string& text)
{
    json::WithRoot(text, [this](const Json::Value& root) {
        const Json::Value& entries = json::MemberOf(root, "ErrorList");
        for (Json::ArrayIndex i = 0; i < entries.size(); ++i) {
            if (entries[i].isNull()) {
                continue;
            }
            JsonErrorStatus entry;
            entry.Parse(entries[i]);
            errorList.push_back(std::move(entry));
        }
    });
}

}  // namespace CapabilitySet
