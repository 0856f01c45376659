// Writes a record's field list into a JSON object.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <json/value.h>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/private/json/JsonReading.h"

namespace CapabilitySet::json
{

// Values already at the target stay unless a field overwrites them. So does a value that reads the
// same as its field: a device that sent a number for a text gets a number back.

template <class Member>
concept Scalar = std::is_arithmetic_v<Member> || std::is_same_v<Member, std::string>;

/// Whether a record lists no members and keeps everything the device sent instead.
template <class Record>
inline constexpr bool kIsTree = std::is_base_of_v<JsonTree<Record>, Record>;

/// Reads a value, or null, the way a member is read; false if it is of the wrong kind.
template <Scalar Member>
bool ReadScalar(const Json::Value& value, Member& member)
{
    if (value.isNull()) {
        member = Member();
        return true;
    }
    if constexpr (std::is_same_v<Member, std::string>) {
        if (value.isArray() || value.isObject()) {
            return false;
        }
        member = value.asString();
    } else if (!value.isBool() && !value.isNumeric()) {
        return false;
    } else if constexpr (std::is_same_v<Member, bool>) {
        member = value.asBool();
    } else if constexpr (std::is_same_v<Member, int>) {
        if (!value.isConvertibleTo(Json::intValue)) {
            return false;
        }
        member = value.asInt();
    } else if constexpr (std::is_same_v<Member, unsigned int>) {
        if (!value.isConvertibleTo(Json::uintValue)) {
            return false;
        }
        member = value.asUInt();
    } else {
        member = value.asDouble();
    }
    return true;
}

/// Identifies a list item among its siblings: the value itself, or the first field of a record.
/// Items whose first field is not a scalar have no key and are identified by position alone.
using ItemKey = std::variant<std::monostate, bool, int, unsigned int, double, std::string>;

/// Visits a field list and keeps the name and value of the first field.
struct FirstField
{
    template <class Member, class... How>
    void operator()(const char* field, const Member& member, How... /*how*/)
    {
        if constexpr (Scalar<Member>) {
            if (name == nullptr) {
                key = member;
            }
        }
        name = name == nullptr ? field : name;
    }

    const char* name = nullptr;
    ItemKey key;
};

template <class Item>
FirstField KeyOf(const Item& item)
{
    FirstField first;
    if constexpr (Scalar<Item>) {
        first.key = item;
    } else if constexpr (!std::is_same_v<Item, Json::Value>) {
        Item::Fields(item, first);
    }
    return first;
}

/// The entries of an array that is about to be rewritten.
class PreviousEntries
{
public:
    /// `wrapper` is the key under which each entry holds its item, or null.
    PreviousEntries(const Json::Value& array, const char* wrapper)
        : array_(array), wrapper_(wrapper)
    {
    }

    /// The entry an item was read from: the next one with the item's key that no other item has
    /// taken, or null. `isScalar` is true for items that are values, not records.
    const Json::Value* Match(const FirstField& item, bool isScalar);

private:
    /// Sets `key` to the key of an entry; false if the entry has none of the kind of `like`.
    bool EntryKey(Json::ArrayIndex entry, const FirstField& like, bool isScalar,
                  ItemKey& key) const;

    const Json::Value& array_;
    const char* wrapper_;
    Json::ArrayIndex next_ = 0;
    /// Entries not yet taken, by key. Filled when an item first fails to match the next entry.
    std::optional<std::set<std::pair<ItemKey, Json::ArrayIndex>>> unmatched_;
};

/// The value, turned into an empty object if it is not an object.
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
        Member present{};
        if (target.isNull() || !ReadScalar(target, present) || present != member) {
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

/// Writes items into an array, each in an object under `wrapper` unless that is null. An item is
/// written over the entry it was read from; one that matches no entry is written from its own
/// fields alone.
template <class Item>
void WriteItems(Json::Value& target, const std::vector<Item>& items, const char* wrapper)
{
    Json::Value before(Json::arrayValue);
    if (target.isArray()) {
        before.swap(target);
    }
    target = Json::Value(Json::arrayValue);
    PreviousEntries previous(before, wrapper);
    for (const auto& element : items) {
        const auto& item = static_cast<const Item&>(element);
        Json::Value& entry = target.append(Json::Value());
        if (const Json::Value* const match = previous.Match(KeyOf(item), Scalar<Item>)) {
            entry = *match;
        }
        Json::Value& written = wrapper == nullptr ? entry : ObjectOf(entry)[wrapper];
        WriteValue(written, item);
    }
}

template <class Item>
void WriteValue(Json::Value& target, const std::vector<Item>& items)
{
    WriteItems(target, items, nullptr);
}

/// Visits a field list and writes each member, except absent parts and values.
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
    // A record without members keeps the value the device sent, of whatever kind.
    if (!kIsTree<Record> || target.isNull()) {
        Record::Fields(record, FieldWriter(ObjectOf(target)));
    }
}

/// Writes a record under its own key, over what the device sent.
template <class Record>
Json::Value& WriteRecord(Json::Value& document, const Record& record)
{
    constexpr std::string_view kKey = Record::kKey;
    Json::Value& target = kKey.empty() ? document : document[Record::kKey];
    target = record.root;
    WriteFields(target, record);
    return target;
}

/// The styled text of the document that `write` fills. Empty if memory runs out, unless a
/// ThrowScope lets the exception through.
template <class Write>
std::string MakeText(Write&& write)
{
    try {
        Json::Value document(Json::objectValue);
        write(document);
        return StyledText(document);
    } catch (...) {  // nothing is thrown at clients
        if (ThrowScope::Active()) {
            throw;
        }
        return {};
    }
}

}  // namespace CapabilitySet::json
