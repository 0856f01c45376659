// Reads a record's field list from a JSON object.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/Limits.h"
#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/NumberText.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/json/MemberIndex.h"

namespace CapabilitySet::json
{

inline void ReadValue(const Json::Value& value, bool& member)
{
    member = value.asBool();
}

inline void ReadValue(const Json::Value& value, int& member)
{
    member = value.asInt();
}

inline void ReadValue(const Json::Value& value, unsigned int& member)
{
    member = value.asUInt();
}

inline void ReadValue(const Json::Value& value, double& member)
{
    member = value.asDouble();
}

inline void ReadValue(const Json::Value& value, std::string& member)
{
    const char* begin = nullptr;
    const char* end = nullptr;
    if (value.isString() && value.getString(&begin, &end)) {
        member.assign(begin, end);
    } else {
        member = value.asString();
    }
}

/// A value kept unchanged.
inline void ReadValue(const Json::Value& value, Json::Value& member)
{
    member = value;
}

/// A nested part with a Parse of its own.
template <class Part>
auto ReadValue(const Json::Value& value, Part& member) -> decltype(member.Parse(value))
{
    return member.Parse(value);
}

/// An element that parses JSON text itself and ignores what is wrong with it.
template <class Element>
auto ReadValue(const Json::Value& value, Element& member)
    -> decltype(member.Parse(StyledText(value)))
    requires(!requires { member.Parse(value); })
{
    return member.Parse(StyledText(value));
}

/// Appends the entries of an array in order; null and scalars have none.
template <class Item>
void ReadValue(const Json::Value& value, std::vector<Item>& items);

template <class Item>
void ReadItem(const Json::Value& value, Item& item);

// One overload for each way of reading that a tag names.

template <class Member>
void ReadAs(const Json::Value& value, Member& member, as::Plain /*how*/)
    requires requires { ReadValue(value, member); }
{
    ReadValue(value, member);
}

inline void ReadAs(const Json::Value& value, bool& member, as::TextFlag /*how*/)
{
    member = value.asString() == "true";
}

inline void ReadAs(const Json::Value& value, std::string& member, as::StyledText /*how*/)
{
    member = value.isNull() ? std::string() : StyledText(value);
}

inline void ReadAs(const Json::Value& value, int& member, as::DecimalText /*how*/)
{
    member = StringToInt(value.asString());
}

/// Calls `read` for each entry of an array in order. Null and scalars have no entries; a non-empty
/// object is of the wrong kind.
template <class Read>
void ForEachEntry(const Json::Value& value, Read&& read)
{
    if (!value.isArray()) {
        if (value.size() != 0) {
            static_cast<void>(value[0U]);  // throws
        }
        return;
    }
    for (const Json::Value& entry : value) {
        read(entry);
    }
}

/// Appends an item for each entry, read from the value that `valueOf` picks. An entry with a member
/// of the wrong kind is not listed and ends the reading.
template <class Item, class ValueOf>
void AppendItems(const Json::Value& value, std::vector<Item>& items, ValueOf&& valueOf)
{
    // A short text can claim many entries: do not reserve for all of them at once.
    constexpr Json::ArrayIndex kReserved = 1024;
    if (value.isArray()) {
        items.reserve(items.size() + std::min(value.size(), kReserved));
    }
    bool isCut = false;
    ForEachEntry(value, [&](const Json::Value& entry) {
        if (items.size() >= limits::kListEntries) {
            isCut = isCut || log::ListIsCut();
            return;
        }
        Item& item = items.emplace_back();
        try {
            ReadItem(valueOf(entry), item);
        } catch (...) {
            items.pop_back();
            throw;
        }
    });
}

template <class Item>
void ReadAs(const Json::Value& value, std::vector<Item>& items, as::Wrapped how)
{
    AppendItems(value, items, [how](const Json::Value& entry) -> const Json::Value& {
        return MemberOf(entry, how.key);
    });
}

/// The field names of a record type, collected on first use.
template <class Record>
const MemberIndex& IndexOf()
{
    static const MemberIndex index = [] {
        MemberIndex names;
        Record sample;
        Record::Fields(sample, [&names](std::string_view name, auto& /*member*/, auto... /*how*/) {
            names.Add(name);
        });
        names.Finish();
        return names;
    }();
    return index;
}

/// Visits a field list and reads each member. A missing one reads as false, 0 or empty. Throws what
/// JsonCpp throws for a member of the wrong kind.
template <class Record>
class FieldReader
{
public:
    explicit FieldReader(const Json::Value& object) : matches_(IndexOf<Record>(), object) {}

    template <class Member, class How = as::Plain>
    void operator()(std::string_view /*name*/, Member& member, How how = {})
    {
        static_assert(
            requires(const Json::Value& value) { ReadAs(value, member, how); },
            "A field of this type and tag cannot be read from JSON: give the type a Parse(const "
            "Json::Value&), or add a ReadValue or ReadAs overload to JsonFields.h.");
        ReadAs(matches_[field_++], member, how);
    }

private:
    MemberMatches matches_;
    std::size_t field_ = 0;
};

template <class Record>
void ReadFields(Record& record, const Json::Value& object)
{
    FieldReader<Record> reader(object);
    Record::Fields(record, reader);
}

template <class Item>
void ReadItem(const Json::Value& value, Item& item)
{
    if constexpr (requires { ReadValue(value, item); }) {
        ReadValue(value, item);
    } else {
        ReadFields(item, value);
    }
}

template <class Item>
void ReadValue(const Json::Value& value, std::vector<Item>& items)
{
    AppendItems(value, items, [](const Json::Value& entry) -> const Json::Value& { return entry; });
}

}  // namespace CapabilitySet::json
