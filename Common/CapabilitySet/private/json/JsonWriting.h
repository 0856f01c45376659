// Writes a record's field list into a JSON object.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <json/value.h>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/private/json/JsonReading.h"

namespace CapabilitySet::json
{

// What stands at the target already stays where no field writes over it. A value that reads as the
// field's own stays too, so that a device gets a number back where it sent one for a text.

template <class Member>
concept Scalar = std::is_arithmetic_v<Member> || std::is_same_v<Member, std::string>;

/// Whether a record has no members of its own, but all that the device said.
template <class Record>
inline constexpr bool kIsTree = std::is_base_of_v<JsonTree<Record>, Record>;

/// Whether the value, or the lack of one, reads as this member.
template <Scalar Member>
bool ReadsAs(const Json::Value& value, const Member& member)
{
    if (value.isNull()) {
        return member == Member();
    }
    if constexpr (std::is_same_v<Member, std::string>) {
        return !value.isArray() && !value.isObject() && value.asString() == member;
    } else if (!value.isBool() && !value.isNumeric()) {
        return false;
    } else if constexpr (std::is_same_v<Member, bool>) {
        return value.asBool() == member;
    } else if constexpr (std::is_same_v<Member, int>) {
        return value.isConvertibleTo(Json::intValue) && value.asInt() == member;
    } else if constexpr (std::is_same_v<Member, unsigned int>) {
        return value.isConvertibleTo(Json::uintValue) && value.asUInt() == member;
    } else {
        return value.asDouble() == member;
    }
}

/// Visits a field list and compares the first field with an object's: it is what tells the items
/// of a list apart.
class FirstField
{
public:
    explicit FirstField(const Json::Value& object) : object_(object) {}

    template <class Member, class... How>
    void operator()(std::string_view name, const Member& member, How... /*how*/)
    {
        if constexpr (Scalar<Member>) {
            if (!asked_) {
                same_ = ReadsAs(MemberOf(object_, name), member);
            }
        }
        asked_ = true;
    }

    [[nodiscard]] bool Same() const { return same_; }

private:
    const Json::Value& object_;
    bool asked_ = false;
    bool same_ = true;
};

/// Whether an entry of a list holds this item, by its first field.
template <class Item>
bool IsOf(const Json::Value& value, const Item& item)
{
    if constexpr (Scalar<Item>) {
        return ReadsAs(value, item);
    } else if constexpr (std::is_same_v<Item, Json::Value>) {
        return value == item;
    } else {
        if (!value.isObject()) {
            return false;
        }
        FirstField first(value);
        Item::Fields(item, first);
        return first.Same();
    }
}

/// The value, made an object when it is none.
inline Json::Value& ObjectOf(Json::Value& value)
{
    if (!value.isObject()) {
        value = Json::Value(Json::objectValue);
    }
    return value;
}

template <class Record>
void WriteFields(Json::Value& target, const Record& record);

template <class Item>
void WriteValue(Json::Value& target, const std::vector<Item>& items);

template <class Member>
void WriteValue(Json::Value& target, const Member& member);

template <class Member>
void WriteValue(Json::Value& target, const Member& member)
{
    if constexpr (Scalar<Member>) {
        if (target.isNull() || !ReadsAs(target, member)) {
            target = Json::Value(member);
        }
    } else if constexpr (std::is_same_v<Member, Json::Value>) {
        target = member;
    } else {
        if constexpr (requires { target = member.root; }) {
            if (target.isNull()) {
                target = member.root;
            }
        }
        WriteFields(target, member);
    }
}

/// Writes items into an array that then has as many entries, each in an object under `key` unless
/// that is null. An item goes over the entry that it was read from, which is the next one with its
/// first field, or the one in its place when none has that and the list is as long as it was.
template <class Item>
void WriteItems(Json::Value& target, const std::vector<Item>& items, const char* key)
{
    Json::Value before(Json::arrayValue);
    if (target.isArray()) {
        before.swap(target);
    }
    target = Json::Value(Json::arrayValue);
    const auto isOf = [&](const Json::Value& entry, const Item& item) {
        if (key == nullptr) {
            return IsOf(entry, item);
        }
        return entry.isObject() && IsOf(MemberOf(entry, key), item);
    };
    const Json::ArrayIndex count = before.size();
    Json::ArrayIndex next = 0;
    for (const auto& element : items) {
        const auto& item = static_cast<const Item&>(element);
        Json::Value& entry = target.append(Json::Value());
        const Json::ArrayIndex place = target.size() - 1;
        Json::ArrayIndex tried = 0;
        while (tried < count && !isOf(before[(next + tried) % count], item)) {
            ++tried;
        }
        if (tried < count) {
            entry = before[(next + tried) % count];
            next = (next + tried) % count + 1;
        } else if (count == items.size()) {
            entry = before[place];
        }
        Json::Value& written = key == nullptr ? entry : ObjectOf(entry)[key];
        WriteValue(written, item);
    }
}

template <class Item>
void WriteValue(Json::Value& target, const std::vector<Item>& items)
{
    WriteItems(target, items, nullptr);
}

/// Visits a field list and writes each member; a part or a value that is not there is not written.
class FieldWriter
{
public:
    explicit FieldWriter(Json::Value& object) : object_(object) {}

    template <class Member, class How = as::Plain>
    void operator()(const char* name, const Member& member, [[maybe_unused]] How how = {}) const
    {
        if constexpr (requires { member.present; }) {
            if (!member.present) {
                return;
            }
        }
        if constexpr (std::is_same_v<Member, Json::Value>) {
            if (member.isNull() && !object_.isMember(name)) {
                return;
            }
        } else if constexpr (kIsTree<Member>) {
            if (member.root.isNull() && !object_.isMember(name)) {
                return;
            }
        }
        if constexpr (std::is_same_v<How, as::StyledText>) {
            WriteStyled(name, member);
        } else if constexpr (std::is_same_v<How, as::Wrapped>) {
            WriteItems(object_[name], member, how.key);
        } else if constexpr (std::is_same_v<How, as::TextFlag>) {
            WriteValue(object_[name], std::string(member ? "true" : "false"));
        } else if constexpr (std::is_same_v<How, as::DecimalText>) {
            WriteValue(object_[name], std::to_string(member));
        } else {
            WriteValue(object_[name], member);
        }
    }

private:
    void WriteStyled(const char* name, const std::string& text) const
    {
        Json::Value value;
        if (!text.empty() && ParseText(text, value)) {
            object_[name] = value;
        }
    }

    Json::Value& object_;
};

template <class Record>
void WriteFields(Json::Value& target, const Record& record)
{
    // What lists no members is the device's own value, of whatever kind.
    if (!kIsTree<Record> || target.isNull()) {
        Record::Fields(record, FieldWriter(ObjectOf(target)));
    }
}

/// A record under its own key, over what the device said.
template <class Record>
Json::Value& WriteRecord(Json::Value& document, const Record& record)
{
    constexpr std::string_view kKey = Record::kKey;
    Json::Value& target = kKey.empty() ? document : document[Record::kKey];
    target = record.root;
    WriteFields(target, record);
    return target;
}

/// The styled text of a document that `write` fills; empty when memory ran out, which inside an
/// operation is thrown on.
template <class Write>
std::string MakeText(Write&& write)
{
    try {
        Json::Value document(Json::objectValue);
        write(document);
        return StyledText(document);
    } catch (...) {  // callers are exported, and nothing is thrown at clients
        if (ThrowScope::Active()) {
            throw;
        }
        return {};
    }
}

}  // namespace CapabilitySet::json
