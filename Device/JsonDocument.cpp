// Reading JSON of any origin without a surprise.
// SPDX-License-Identifier: Apache-2.0
#include "Device/JsonDocument.h"

#include <json/reader.h>

#include <memory>

#include "Device/ParsedRequest.h"

namespace Device
{

std::optional<Json::Value> ReadJsonDocument(std::string_view text, std::string* error)
{
    Json::CharReaderBuilder builder;
    builder["stackLimit"] = 256;
    builder["failIfExtra"] = true;
    builder["rejectDupKeys"] = true;
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

}  // namespace Device
