// Defines the members of JsonRecord and JsonPart; a source instantiates them for its records.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/private/json/JsonFields.h"
#include "CapabilitySet/private/json/JsonWriting.h"

namespace CapabilitySet
{

template <class Part>
void JsonPart<Part>::Parse(const Json::Value& value)
{
    if (value.isNull()) {
        return;
    }
    json::ReadFields(static_cast<Part&>(*this), value);
    present = true;
}

template <class Record>
void JsonRecord<Record>::Parse(const std::string& text)
{
    json::WithRoot(text, [this](Json::Value& document) {
        constexpr std::string_view kKey = Record::kKey;
        json::RequireObject(document);
        Json::Value* found = &document;
        if constexpr (!kKey.empty()) {
            const bool hasKey = !json::MemberOf(document, kKey).isNull();
            if (hasKey) {
                found = &document[Record::kKey];
            } else if constexpr (!requires { Record::kMayLackKey; }) {
                document = Json::Value();
            }
        }
        json::RequireObject(*found);
        root.swap(*found);
        json::ReadFields(static_cast<Record&>(*this), root);
        if constexpr (requires(Record& record) { record.ReadOnDemand(); }) {
            static_cast<Record&>(*this).ReadOnDemand();
        }
    });
}

template <class Record>
std::string JsonRecord<Record>::Make() const
{
    return json::MakeText([this](Json::Value& document) {
        json::WriteRecord(document, static_cast<const Record&>(*this));
    });
}

}  // namespace CapabilitySet
