// Reads a record's field list from a JSON object.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include "CapabilitySet/private/JsonReading.h"

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
    if (value.isString() && value.getString(&begin, &end))
        member.assign(begin, end);
    else
        member = value.asString();
}

/// A nested part with a Parse of its own.
template <class Part>
auto ReadValue(const Json::Value& value, Part& member) -> decltype(member.Parse(value))
{
    return member.Parse(value);
}

/// Appends the entries of an array in order; anything but an array, an object or null has none.
template <class Item>
void ReadValue(const Json::Value& value, std::vector<Item>& items);

/// Visits a field list and reads each member, there or not: a missing one reads as false, 0 or
/// empty. Throws what JsonCpp throws for a member of the wrong kind.
class FieldReader
{
public:
    explicit FieldReader(const Json::Value& object) : object_(object) {}

    template <class Member>
    void operator()(std::string_view name, Member& member) const
    {
        static_assert(
            requires(const Json::Value& value) { ReadValue(value, member); },
            "A field of this type cannot be read from JSON: give the type a Parse(const "
            "Json::Value&), or add a ReadValue overload to JsonFields.h.");
        ReadValue(MemberOf(object_, name), member);
    }

private:
    const Json::Value& object_;
};

template <class Record>
void ReadFields(Record& record, const Json::Value& object)
{
    Record::Fields(record, FieldReader(object));
}

template <class Item>
void ReadValue(const Json::Value& value, std::vector<Item>& items)
{
    if (!value.isArray()) {
        if (!value.empty())
            static_cast<void>(value[0U]);  // throws
        return;
    }
    items.reserve(items.size() + value.size());
    for (const Json::Value& entry : value) {
        if constexpr (requires(Item item) { ReadValue(entry, item); })
            ReadValue(entry, items.emplace_back());
        else
            ReadFields(items.emplace_back(), entry);
    }
}

}  // namespace CapabilitySet::json
