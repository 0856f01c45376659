// Writes a record's field list into a JSON object.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include <json/value.h>

#include "CapabilitySet/private/FieldTags.h"

namespace CapabilitySet::json
{

// What stands at the target already stays where no field writes over it.

template <class Record>
void WriteFields(Json::Value& target, const Record& record);

template <class Member>
void WriteValue(Json::Value& target, const Member& member)
{
    if constexpr (std::is_constructible_v<Json::Value, const Member&>) {
        target = Json::Value(member);
    } else {
        // A part that the device did not send is not sent back.
        if constexpr (requires { member.present; }) {
            if (!member.present)
                return;
        }
        WriteFields(target, member);
    }
}

/// Writes items into an array that then has as many entries; `entryOf` finds the place in an entry.
template <class Item, class EntryOf>
void WriteItems(Json::Value& target, const std::vector<Item>& items, EntryOf&& entryOf)
{
    if (!target.isArray())
        target = Json::Value(Json::arrayValue);
    target.resize(static_cast<Json::ArrayIndex>(items.size()));
    Json::ArrayIndex index = 0;
    for (const auto& item : items) {
        Json::Value& entry = target[index++];
        if constexpr (requires(Item part) { part.present; })
            WriteFields(entryOf(entry), item);  // an item stands in the list, so it is there
        else
            WriteValue(entryOf(entry), static_cast<const Item&>(item));
    }
}

template <class Item>
void WriteValue(Json::Value& target, const std::vector<Item>& items)
{
    WriteItems(target, items, [](Json::Value& entry) -> Json::Value& { return entry; });
}

/// Visits a field list and writes each member.
class FieldWriter
{
public:
    explicit FieldWriter(Json::Value& object) : object_(object) {}

    template <class Member, class How = as::Plain>
    void operator()(const char* name, const Member& member, [[maybe_unused]] How how = {}) const
    {
        if constexpr (requires { member.present; }) {
            if (!member.present)
                return;
        }
        Json::Value& target = object_[name];
        if constexpr (std::is_same_v<How, as::Wrapped>)
            WriteItems(target, member,
                       [&](Json::Value& entry) -> Json::Value& { return entry[how.key]; });
        else if constexpr (std::is_same_v<How, as::TextFlag>)
            target = member ? "true" : "false";
        else if constexpr (std::is_same_v<How, as::DecimalText>)
            target = std::to_string(member);
        else if constexpr (!std::is_same_v<How, as::StyledText>)  // styled text only repeats root
            WriteValue(target, member);
    }

private:
    Json::Value& object_;
};

template <class Record>
void WriteFields(Json::Value& target, const Record& record)
{
    if (!target.isObject())
        target = Json::Value(Json::objectValue);
    Record::Fields(record, FieldWriter(target));
}

/// The styled text of a document that `write` fills; empty when memory ran out. Never throws.
template <class Write>
std::string MakeText(Write&& write)
{
    try {
        Json::Value document(Json::objectValue);
        write(document);
        return document.toStyledString();
    } catch (...) {  // callers are exported, and nothing is thrown at clients
        return {};
    }
}

}  // namespace CapabilitySet::json
