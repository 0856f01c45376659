// Reading the entries of a manifest.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/ManifestEntry.h"

#include <algorithm>

#include "Device/document/JsonDocument.h"

namespace Device
{

std::string TextMember(const Json::Value& object, const char* key, const std::string& where,
                       bool required)
{
    const Json::Value& value = object[key];
    if (value.isString() || (value.isNull() && !required)) {
        return value.asString();
    }
    throw ManifestFault(where + ": \"" + key + "\" is " +
                        (value.isNull() ? "missing" : "not a string"));
}

void RefuseUnknownKeys(const Json::Value& object, std::initializer_list<std::string_view> known,
                       const std::string& where)
{
    for (const std::string& key : object.getMemberNames()) {
        if (std::ranges::find(known, key) == known.end()) {
            throw ManifestFault(where + ": there is no key \"" + key + "\"");
        }
    }
}

std::string ManifestFiles::Read(const std::string& name, const std::string& where)
{
    // A profile may come from anyone: it must not reach outside its folder.
    if (name.starts_with('/') || name.find("..") != std::string::npos) {
        throw ManifestFault(where + ": \"" + name + "\" is not beneath the profile's folder");
    }
    std::string error;
    std::optional<std::string> text = files_(name, error);
    if (!text) {
        throw ManifestFault(where + ": cannot read \"" + name + "\": " + error);
    }
    if (text->size() > left_) {
        throw ManifestFault(where + ": the profile has more than " +
                            std::to_string(kMostProfileBytes >> 20) + " MiB");
    }
    left_ -= text->size();
    return *std::move(text);
}

Json::Value ManifestFiles::ReadObject(const std::string& name, const std::string& where)
{
    std::string errors;
    std::optional<Json::Value> root = ReadJsonDocument(Read(name, where), &errors);
    if (!root) {
        throw ManifestFault(name +
                            " is not JSON: " + errors.substr(0, errors.find_last_not_of('\n') + 1));
    }
    if (!root->isObject()) {
        throw ManifestFault(name + " does not contain an object");
    }
    return *std::move(root);
}

}  // namespace Device
