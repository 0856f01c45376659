// Reads JSON from anywhere.
// SPDX-License-Identifier: Apache-2.0
#include "Device/document/JsonDocument.h"

#include <memory>

#include <json/reader.h>

#include "Device/Limits.h"
#include "Device/document/Text.h"

namespace Device
{

std::optional<Json::Value> ReadJsonDocument(std::string_view text, std::string* error)
{
    Json::CharReaderBuilder builder;
    builder["stackLimit"] = kMostJsonDepth;
    builder["failIfExtra"] = true;
    builder["rejectDupKeys"] = true;
    // Collecting a comment rescans everything since the last value.
    builder["collectComments"] = false;
    const std::unique_ptr<Json::CharReader> reader(builder.newCharReader());
    Json::Value root;
    try {
        if (reader->parse(text.data(), text.data() + text.size(), &root, error)) {
            return root;
        }
    } catch (const Json::Exception& exception) {
        if (error != nullptr) {
            *error = exception.what();
        }
    }
    return std::nullopt;
}

const Json::Value& JsonMember(const Json::Value& value, const char* key)
{
    return value.isObject() ? value[key] : Json::Value::nullSingleton();
}

std::string JsonText(const Json::Value& value)
{
    return value.isString() || value.isIntegral() ? value.asString() : std::string();
}

std::optional<int> JsonNumber(const Json::Value& value)
{
    int number = 0;
    if (value.isInt()) {
        return value.asInt();
    }
    return value.isString() && ReadNumber(value.asString(), number) ? std::optional(number)
                                                                    : std::nullopt;
}

std::vector<Json::Value> JsonEntries(const Json::Value& list, const char* item)
{
    std::vector<Json::Value> entries;
    for (const Json::Value& entry : list.isArray() ? list : Json::Value(Json::arrayValue)) {
        entries.push_back(*item == '\0' ? entry : JsonMember(entry, item));
    }
    return entries;
}

}  // namespace Device
