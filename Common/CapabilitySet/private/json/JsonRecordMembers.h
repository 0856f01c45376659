// The members that JsonRecord and JsonPart declare; a source file instantiates them for its own.
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
        if constexpr (kKey.empty()) {
            root.swap(document);
        } else {
            // Checked first: a document that can have no members throws, and root stays.
            const bool there = !json::MemberOf(document, kKey).isNull();
            if (there) {
                root.swap(document[Record::kKey]);
            } else if constexpr (requires { Record::kMayLackKey; }) {
                root.swap(document);
            } else {
                root = Json::Value();
            }
        }
        json::ReadFields(static_cast<Record&>(*this), root);
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
