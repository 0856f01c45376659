// Members of a record as short texts for people.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Values.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "Tool/terminal/Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;
using Kind = RecordNode::Kind;

namespace
{

constexpr std::array<std::string_view, 6> kLimits{"@min",     "@max", "@def",
                                                  "@default", "@opt", "@unit"};

bool SaysLimits(const RecordNode& attribute)
{
    return std::ranges::find(kLimits, attribute.name) != kLimits.end();
}

const RecordNode* Child(const RecordNode& node, std::string_view name)
{
    const auto found = std::ranges::find(node.children, name, &RecordNode::name);
    return found == node.children.end() ? nullptr : &*found;
}

void Append(std::string& text, std::string_view more, std::string_view between)
{
    if (!more.empty()) {
        text += text.empty() ? std::string(more) : std::string(between) + std::string(more);
    }
}

std::string Spaced(std::string_view commaList)
{
    std::string spaced;
    for (const char c : commaList) {
        spaced += c;
        if (c == ',') {
            spaced += ' ';
        }
    }
    return spaced;
}

std::string TextOf(const RecordNode* node)
{
    return node == nullptr ? std::string() : Harmless(node->text);
}

/// "1..8", "up to 8", "at least 1".
std::string Bounds(const std::string& min, const std::string& max)
{
    if (min.empty() || max.empty()) {
        return max.empty() ? (min.empty() ? min : "at least " + min) : "up to " + max;
    }
    return min + ".." + max;
}

Cell OptionsCell(const RecordNode& node)
{
    std::string options;
    std::string attributes;
    for (const RecordNode& child : node.children) {
        if (child.kind == Kind::Options) {
            for (const RecordNode& each : child.children) {
                Append(attributes, Harmless(each.text), ", ");
            }
        } else {
            Append(options, Harmless(child.text), ", ");
        }
    }
    if (options.empty() && attributes.empty()) {
        return {"(no options)", Style::Faint};
    }
    Append(options, attributes.empty() ? attributes : "attributes: " + attributes, "; ");
    return {options};
}

Cell RangeCell(const RecordNode& node)
{
    std::string numbers;
    for (const RecordNode& child : node.children) {
        if (child.name.empty()) {
            Append(numbers, child.text, ", ");
        }
    }
    if (numbers.empty()) {
        numbers = Bounds(TextOf(Child(node, "min")), TextOf(Child(node, "max")));
    }
    if (const RecordNode* def = Child(node, "def")) {
        numbers += " (default " + def->text + ")";
    }
    return {numbers};
}

Cell TextCell(const std::string& text)
{
    if (text == "true") {
        return {"yes", Style::Yes};
    }
    if (text == "false") {
        return {"no", Style::No};
    }
    if (text.empty()) {
        return {"(empty)", Style::Faint};
    }
    const bool digits = text.find_first_not_of("0123456789.-") == std::string::npos;
    return {Harmless(text), Style::Plain, digits};
}

/// The options of an element, which are a text with commas or a list.
std::string OptionsOf(const RecordNode& element)
{
    const RecordNode* const options = Child(element, "@opt");
    std::string text = options == nullptr ? std::string() : Spaced(Harmless(options->text));
    if (options != nullptr) {
        for (const RecordNode& each : options->children) {
            Append(text, Harmless(each.text), ", ");
        }
    }
    return text;
}

/// Limits that the device did not give, which the record keeps as zeros.
bool AreFilledIn(const RecordNode& element)
{
    return std::ranges::all_of(element.children, [](const RecordNode& each) {
        return each.kind == Kind::List || each.text == "0";
    });
}

/// An element with attributes and text but without elements.
Cell ElementCell(const RecordNode& element)
{
    std::string text = element.text.empty() ? std::string() : TextCell(element.text).text;
    const std::string options = OptionsOf(element);
    if (AreFilledIn(element)) {
        return options.empty() ? Cell{"(empty)", Style::Faint} : Cell{options};
    }
    Append(text, Bounds(TextOf(Child(element, "@min")), TextOf(Child(element, "@max"))), ", ");
    Append(text, options, ": ");
    const std::string unit = TextOf(Child(element, "@unit"));
    const bool isFactor = !unit.empty() && unit.front() >= '0' && unit.front() <= '9';
    Append(text, unit, isFactor ? " x " : " ");
    for (const char* name : {"@def", "@default"}) {
        if (const RecordNode* def = Child(element, name)) {
            Append(text, "(default " + Harmless(def->text) + ")", " ");
        }
    }
    const std::string others = PlainAttributes(element);
    Append(text, others.empty() ? others : "(" + others + ")", " ");
    return text.empty() ? Cell{"(empty)", Style::Faint} : Cell{text};
}

/// The bounds of a setting beside a list of its values.
bool IsBoundsOrList(const RecordNode& node)
{
    return node.children.size() == 2 && node.children[0].kind == Kind::Range &&
           node.children[0].name == "minMax" && node.children[1].kind == Kind::Range &&
           node.children[1].name == "range";
}

std::optional<Cell> RecordCell(const RecordNode& node)
{
    if (IsBoundsOrList(node)) {
        std::string text;
        for (const RecordNode& part : node.children) {
            Append(text, part.announced ? RangeCell(part).text : std::string(), "; ");
        }
        return Cell{text};
    }
    if (node.children.empty() || !std::ranges::all_of(node.children, IsAttribute)) {
        return node.children.empty() ? std::optional(TextCell(node.text)) : std::nullopt;
    }
    return ElementCell(node);
}

}  // namespace

bool IsAttribute(const RecordNode& node)
{
    return node.name.starts_with('@');
}

std::string PlainAttributes(const RecordNode& element)
{
    std::string text;
    for (const RecordNode& child : element.children) {
        // Namespaces say nothing about the device.
        if (IsAttribute(child) && !SaysLimits(child) && !child.name.starts_with("@xmlns")) {
            Append(text, Harmless(child.name.substr(1)) + " " + Harmless(child.text), ", ");
        }
    }
    return text;
}

std::optional<Cell> InOneLine(const RecordNode& node)
{
    switch (node.kind) {
        case Kind::Flag:
        case Kind::Text:
            return TextCell(node.text);
        case Kind::Number:
            return Cell{node.text, Style::Plain, true};
        case Kind::Options:
            return OptionsCell(node);
        case Kind::Range:
            return RangeCell(node);
        case Kind::Record:
            return RecordCell(node);
        case Kind::List:
            return std::nullopt;
    }
    return std::nullopt;
}

}  // namespace Tool
