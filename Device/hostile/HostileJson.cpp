// Spoils a sound JSON document.
// SPDX-License-Identifier: Apache-2.0
#include "Device/hostile/HostileJson.h"

#include <memory>

#include <json/json.h>

namespace Device
{
namespace
{

Json::Value ParseJson(const std::string& sample)
{
    Json::Value root;
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    try {
        reader->parse(sample.data(), sample.data() + sample.size(), &root, nullptr);
    } catch (const Json::Exception&) {
        root = Json::Value();
    }
    return root;
}

// Replaces every value for which `wanted` is true.
void ReplaceValues(Json::Value& value, bool (Json::Value::*wanted)() const, const Json::Value& with)
{
    if ((value.*wanted)()) {
        value = with;
    } else if (value.isObject() || value.isArray()) {
        for (Json::Value& member : value) {
            ReplaceValues(member, wanted, with);
        }
    }
}

Json::Value WrongKind(const Json::Value& value)
{
    if (value.isObject()) {
        Json::Value array(Json::arrayValue);
        for (const Json::Value& member : value) {
            array.append(WrongKind(member));
        }
        return array;
    }
    if (value.isArray()) {
        Json::Value object(Json::objectValue);
        for (Json::ArrayIndex i = 0; i < value.size(); ++i) {
            object[std::to_string(i)] = WrongKind(value[i]);
        }
        return object;
    }
    return value.isString() ? Json::Value(7) : Json::Value(value.asString());
}

}  // namespace

std::string JsonWithNumbers(const std::string& sample, const std::string& number)
{
    // Json::Value cannot represent every such number, so it is inserted after writing.
    const std::string mark = "@number@";
    Json::Value root = ParseJson(sample);
    ReplaceValues(root, &Json::Value::isNumeric, mark);
    std::string text = root.toStyledString();
    for (size_t at = 0; (at = text.find('"' + mark + '"', at)) != std::string::npos;) {
        text.replace(at, mark.size() + 2, number);
    }
    return text;
}

std::string JsonWithTexts(const std::string& sample, const std::string& with)
{
    Json::Value root = ParseJson(sample);
    ReplaceValues(root, &Json::Value::isString, with);
    return root.toStyledString();
}

std::string JsonWithWrongKinds(const std::string& sample)
{
    Json::Value root = ParseJson(sample);
    for (Json::Value& member : root) {
        member = WrongKind(member);
    }
    return root.toStyledString();
}

std::string JsonRenamed(const std::string& sample, const std::string& root, const std::string& name)
{
    Json::Value value = ParseJson(sample);
    if (value.isObject() && value.removeMember(root, &value[name])) {
        return value.toStyledString();
    }
    return "{\"" + name + "\": {}}\n";
}

std::string JsonWithMembers(const std::string& sample, const std::string& members)
{
    std::string text = sample;
    return text.insert(text.find('{') + 1, members);
}

}  // namespace Device
