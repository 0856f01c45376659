// The element types that JSON capability records share.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/JsonTARN/JsonElements.h"

#include "CapabilitySet/private/json/JsonReading.h"

namespace CapabilitySet
{

void OptJsonElement::Parse(const std::string& text)
{
    json::WithRoot(text, [this](const Json::Value& root) {
        const Json::Value& options = json::MemberOf(root, "@opt");
        if (options.isNull()) {
            return;
        }
        capable = true;
        for (Json::ArrayIndex i = 0; i < options.size(); ++i) {
            opt.push_back(options[i].asString());
        }
    });
}

void MisinfoMinMaxElement::Parse(const std::string& text)
{
    status.Parse(text);
    json::WithRoot(text, [this](const Json::Value& root) {
        min = json::MemberOf(root, "@min").asInt();
        max = json::MemberOf(root, "@max").asInt();
    });
}

}  // namespace CapabilitySet
