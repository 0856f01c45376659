// Any record as a tree of names and values, for printing and comparing.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/Export.h"
#include "CapabilitySet/FieldTags.h"

namespace CapabilitySet
{

/// A record, a member of it, or an item of a list.
struct CAPABILITYSET_API RecordNode
{
    enum class Kind : std::uint8_t
    {
        Record,   ///< children are its members
        List,     ///< children are its items, in order
        Flag,     ///< text is "true" or "false"
        Number,   ///< text is a decimal number
        Text,     ///< text is as the device sent it
        Options,  ///< children are texts
        Range     ///< children are numbers: bounds, default, or the numbers of a list
    };

    std::string name;
    Kind kind = Kind::Record;
    std::string text;
    bool announced = true;  ///< false: the device did not announce this, children hold defaults
    std::vector<RecordNode> children;

    friend bool operator==(const RecordNode&, const RecordNode&) = default;
};

namespace tree
{

CAPABILITYSET_API RecordNode Flag(std::string name, bool value);
CAPABILITYSET_API RecordNode Text(std::string name, std::string value);
CAPABILITYSET_API RecordNode Real(std::string name, double value);
CAPABILITYSET_API RecordNode Real(std::string name, float value);
CAPABILITYSET_API RecordNode Options(std::string name, bool announced,
                                     const std::vector<std::string>& options);

template <std::integral Number>
RecordNode Integer(std::string name, Number value)
{
    return {std::move(name), RecordNode::Kind::Number, std::to_string(value), true, {}};
}

// One overload for each type of member. That for flags takes nothing but bool itself: a pointer
// or a number must not become one.

template <std::same_as<bool> Member>
RecordNode Node(std::string name, const Member& value)
{
    return Flag(std::move(name), value);
}

template <std::integral Member>
    requires(!std::same_as<Member, bool>)
RecordNode Node(std::string name, const Member& value)
{
    return Integer(std::move(name), value);
}

template <class Member>
    requires std::is_enum_v<Member>
RecordNode Node(std::string name, const Member& value)
{
    return Integer(std::move(name), static_cast<std::underlying_type_t<Member>>(value));
}

template <std::floating_point Member>
RecordNode Node(std::string name, const Member& value)
{
    return Real(std::move(name), value);
}

inline RecordNode Node(std::string name, const std::string& value)
{
    return Text(std::move(name), value);
}

CAPABILITYSET_API RecordNode Node(std::string name, const OptElement<std::string>& value);
CAPABILITYSET_API RecordNode Node(std::string name, const MinMaxElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const MinMaxPropElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const RangeElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const MinMaxOrRangeElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const DefaultElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const OptJsonElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const MisinfoMinMaxElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const AbilityElement& value);
CAPABILITYSET_API RecordNode Node(std::string name, const Json::Value& value);

/// Adds the members of `root` that `record` has no member for.
CAPABILITYSET_API void AddUnlisted(RecordNode& record, const Json::Value& root);

template <HasFields Record>
RecordNode Node(std::string name, const Record& record);

template <class Item>
RecordNode Node(std::string name, const std::vector<Item>& items);

template <class Item>
RecordNode Node(std::string name, const std::shared_ptr<Item>& item)
{
    return item == nullptr ? RecordNode{std::move(name), RecordNode::Kind::Record, {}, false, {}}
                           : Node(std::move(name), *item);
}

template <HasFields Record>
RecordNode Node(std::string name, const Record& record)
{
    RecordNode node{std::move(name), RecordNode::Kind::Record, {}, true, {}};
    if constexpr (requires { record.valid; }) {
        node.announced = record.valid;
    } else if constexpr (requires { record.capable; }) {
        node.announced = record.capable;
    } else if constexpr (requires { record.present; }) {
        node.announced = record.present;
    }
    Record::Fields(record, [&node](const char* field, const auto& member, auto&&... /*how*/) {
        node.children.push_back(Node(field, member));
    });
    // A JSON record that lists no members holds the device's own.
    if constexpr (requires { Node(std::string(), static_cast<const Json::Value&>(record.root)); }) {
        if (node.children.empty()) {
            node.children = Node(std::string(), record.root).children;
        }
    }
    return node;
}

template <class Item>
RecordNode Node(std::string name, const std::vector<Item>& items)
{
    RecordNode node{std::move(name), RecordNode::Kind::List, {}, true, {}};
    for (const auto& item : items) {
        node.children.push_back(Node(std::string(), item));
    }
    return node;
}

}  // namespace tree

/// Any record of the library, by its own field list. An ability document becomes the tree of its
/// elements, attributes as members whose names begin with "@".
template <class Record>
RecordNode Describe(std::string name, const Record& record)
{
    if constexpr (std::derived_from<Record, AbilityDocument>) {
        RecordNode node = tree::Node(std::move(name), record.root);
        node.announced = record.capable;
        return node;
    } else {
        return tree::Node(std::move(name), record);
    }
}

/// As Describe; a JSON record is followed by what else the device said, and counts as announced
/// when the device said anything.
template <class Record>
RecordNode DescribeWhole(std::string name, const Record& record)
{
    RecordNode node = Describe(std::move(name), record);
    if constexpr (requires(const Json::Value& root) { record.root == root; }) {
        tree::AddUnlisted(node, record.root);
        node.announced = !record.root.isNull();
    }
    return node;
}

/// Whether two trees hold the same values. That a record was announced at all does not count: one
/// that was just made and one that a device sent back are the same.
CAPABILITYSET_API bool SameValues(const RecordNode& a, const RecordNode& b);

/// Whether two records of a type hold the same values in all their fields.
template <class Record>
bool SameFields(const Record& a, const Record& b)
{
    return SameValues(Describe({}, a), Describe({}, b));
}

}  // namespace CapabilitySet
