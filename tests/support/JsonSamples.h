// Documents that fill the members of any JSON record, made from its field list.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include <json/value.h>

#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/FieldTags.h"

namespace TestSupport
{

namespace as = CapabilitySet::as;

/// Makes what a device would send for each member, another value each time, and beside the members
/// of every object one that no record knows.
class Sampler
{
public:
    template <class Record>
    Json::Value Object()
    {
        Json::Value object;
        object["unknown"] = ++count_;
        Record record;
        Record::Fields(record, [&](const char* name, auto& member, auto... how) {
            object[name] = Value(member, how...);
        });
        return object;
    }

private:
    template <class Member>
    Json::Value Value(const Member& /*member*/)
    {
        ++count_;
        if constexpr (std::is_same_v<Member, bool>) {
            return true;
        } else if constexpr (std::is_floating_point_v<Member>) {
            return count_ + 0.5;
        } else if constexpr (std::is_arithmetic_v<Member>) {
            return count_;
        } else if constexpr (std::is_same_v<Member, std::string>) {
            return "text " + std::to_string(count_);
        } else if constexpr (std::is_same_v<Member, CapabilitySet::OptJsonElement> ||
                             std::is_same_v<Member, Json::Value>) {
            Json::Value options;
            options["@opt"].append("option " + std::to_string(count_));
            return options;
        } else {
            return Object<Member>();
        }
    }

    template <class Item>
    Json::Value Value(const std::vector<Item>& /*items*/)
    {
        Json::Value array;
        for (int i = 0; i < 2; ++i) {
            array.append(Value(Item()));
        }
        return array;
    }

    template <class Item>
    Json::Value Value(const std::vector<Item>& items, as::Wrapped how)
    {
        Json::Value array = Value(items);
        for (Json::Value& entry : array) {
            Json::Value wrapped;
            wrapped["beside"] = ++count_;
            wrapped[how.key] = entry;
            entry = wrapped;
        }
        return array;
    }

    Json::Value Value(bool /*member*/, as::TextFlag /*how*/) { return "true"; }
    Json::Value Value(int /*member*/, as::DecimalText /*how*/) { return std::to_string(++count_); }
    // The record that is read from the same key follows and says what stands there.
    Json::Value Value(const std::string& /*member*/, as::StyledText /*how*/) { return "styled"; }

    int count_ = 0;
};

/// A document that holds these members of a record.
template <class Record>
std::string TextOf(const Json::Value& members)
{
    if (Record::kKey[0] == '\0') {
        return members.toStyledString();
    }
    Json::Value document;
    document[Record::kKey] = members;
    return document.toStyledString();
}

/// A document that fills every member of a record.
template <class Record>
std::string SampleText()
{
    return TextOf<Record>(Sampler().Object<Record>());
}

}  // namespace TestSupport
