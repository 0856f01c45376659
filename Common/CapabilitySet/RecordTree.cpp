// Any record as a tree of names and values.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/RecordTree.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <set>

#include <json/value.h>

namespace CapabilitySet::tree
{
namespace
{

using Kind = RecordNode::Kind;

/// The shortest form that reads back the same; independent of the locale.
template <class Value>
std::string Shortest(Value value)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), end.ptr};
}

/// A real number stays one: 1.0, not 1.
std::string RealText(double value)
{
    std::string text = Shortest(value);
    const bool isWhole = text.find_first_of(".einf") == std::string::npos;
    return isWhole ? text + ".0" : text;
}

RecordNode Bounds(std::string name, bool announced, unsigned int min, unsigned int max)
{
    return {
        std::move(name), Kind::Range, {}, announced, {Integer("min", min), Integer("max", max)}};
}

}  // namespace

RecordNode Flag(std::string name, bool value)
{
    return {std::move(name), Kind::Flag, value ? "true" : "false", true, {}};
}

RecordNode Text(std::string name, std::string value)
{
    return {std::move(name), Kind::Text, std::move(value), true, {}};
}

RecordNode Real(std::string name, double value)
{
    return {std::move(name), Kind::Number, Shortest(value), true, {}};
}

RecordNode Real(std::string name, float value)
{
    return {std::move(name), Kind::Number, Shortest(value), true, {}};
}

RecordNode Options(std::string name, bool announced, const std::vector<std::string>& options)
{
    RecordNode node{std::move(name), Kind::Options, {}, announced, {}};
    for (const std::string& option : options) {
        node.children.push_back(Text({}, option));
    }
    return node;
}

RecordNode Node(std::string name, const OptElement<std::string>& value)
{
    RecordNode node = Options(std::move(name), value.capable, value.opt);
    if (!value.attri.empty()) {
        node.children.push_back(Options("attri", true, value.attri));
    }
    return node;
}

RecordNode Node(std::string name, const MinMaxElement& value)
{
    RecordNode node = Bounds(std::move(name), value.capable, value.min, value.max);
    if (value.hasDefault) {
        node.children.push_back(Integer("def", value.def));
    }
    return node;
}

RecordNode Node(std::string name, const MinMaxPropElement& value)
{
    return Bounds(std::move(name), value.capable, value.min, value.max);
}

RecordNode Node(std::string name, const RangeElement& value)
{
    RecordNode node{std::move(name), Kind::Range, {}, value.capable, {}};
    for (const int number : value.range) {
        node.children.push_back(Integer({}, number));
    }
    if (value.hasDefault) {
        node.children.push_back(Integer("def", value.def));
    }
    return node;
}

RecordNode Node(std::string name, const MinMaxOrRangeElement& value)
{
    return {std::move(name),
            Kind::Record,
            {},
            value.capable,
            {Node("minMax", value.minMax), Node("range", value.range)}};
}

RecordNode Node(std::string name, const DefaultElement& value)
{
    RecordNode node = Integer(std::move(name), value.value);
    node.announced = value.capable;
    return node;
}

RecordNode Node(std::string name, const OptJsonElement& value)
{
    return Options(std::move(name), value.capable, value.opt);
}

RecordNode Node(std::string name, const MisinfoMinMaxElement& value)
{
    return {std::move(name),
            Kind::Record,
            {},
            value.capable,
            {Node("status", value.status), Integer("min", value.min), Integer("max", value.max)}};
}

RecordNode Node(std::string name, const AbilityElement& value)
{
    RecordNode node{std::move(name), Kind::Record, value.text, true, {}};
    for (const auto& [attribute, text] : value.attributes) {
        node.children.push_back(Text("@" + attribute, text));
    }
    for (const AbilityElement& child : value.children) {
        node.children.push_back(Node(child.name, child));
    }
    if (node.children.empty()) {
        node.kind = Kind::Text;
    }
    return node;
}

RecordNode Node(std::string name, const Json::Value& value)
{
    if (value.isBool()) {
        return Flag(std::move(name), value.asBool());
    }
    RecordNode node{std::move(name), Kind::Text, {}, !value.isNull(), {}};
    if (value.isObject() || value.isArray()) {
        node.kind = value.isObject() ? Kind::Record : Kind::List;
        for (auto child = value.begin(); child != value.end(); ++child) {
            node.children.push_back(Node(value.isObject() ? child.name() : std::string(), *child));
        }
        return node;
    }
    if (value.isNumeric()) {
        node.kind = Kind::Number;
    }
    // JsonCpp would write 0.4 as 0.40000000000000002.
    node.text = value.type() == Json::realValue ? RealText(value.asDouble()) : value.asString();
    return node;
}

void AddUnlisted(RecordNode& record, const Json::Value& root)
{
    if (!root.isObject()) {
        if (!root.isNull()) {
            record.children.push_back(Node("(whole)", root));
        }
        return;
    }
    // Hostile answers hold members by the ten thousand.
    std::set<std::string> listed;
    for (const RecordNode& child : record.children) {
        listed.insert(child.name);
    }
    for (auto each = root.begin(); each != root.end(); ++each) {
        const std::string name = each.name();
        if (!listed.contains(name)) {
            record.children.push_back(Node(name, *each));
        }
    }
}

}  // namespace CapabilitySet::tree

namespace CapabilitySet
{

bool SameValues(const RecordNode& a, const RecordNode& b)
{
    return a.name == b.name && a.kind == b.kind && a.text == b.text &&
           (a.kind == RecordNode::Kind::Record || a.announced == b.announced) &&
           std::equal(a.children.begin(), a.children.end(), b.children.begin(), b.children.end(),
                      SameValues);
}

}  // namespace CapabilitySet
