// Fuzzes the shared element types with XML documents.
// SPDX-License-Identifier: Apache-2.0

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/xml/XmlFields.h"
#include "fuzz/Check.h"
#include "fuzz/Targets.h"
#include "support/ReferenceXml.h"

namespace Fuzz
{
namespace
{

using namespace CapabilitySet;

using TestSupport::reference::AttributeOf;
using TestSupport::reference::ContentOf;
using TestSupport::reference::Find;
using TestSupport::reference::NumberOf;
using TestSupport::reference::OptionsOf;
using TestSupport::reference::PiecesOf;

/// The text of the next child of this name; empty if there is none.
std::string NextText(const xmlNode*& cursor, const char* name)
{
    if (!Find(cursor, name)) {
        return {};
    }
    std::string text = ContentOf(cursor);
    cursor = cursor->next;
    return text;
}

MinMaxPropElement PlainBounds(const xmlNode* element)
{
    MinMaxPropElement range;
    const std::string min = AttributeOf(element, "min").value_or("");
    const std::string max = AttributeOf(element, "max").value_or("");
    range.min = NumberOf<unsigned>(min);
    range.max = NumberOf<unsigned>(max);
    range.capable = !min.empty() && !max.empty();
    return range;
}

/// As a range of children, where zero means absent.
MinMaxElement PlainAttributes(const xmlNode* element)
{
    const MinMaxPropElement bounds = PlainBounds(element);
    MinMaxElement range;
    range.min = bounds.min;
    range.max = bounds.max;
    range.capable = bounds.capable && (bounds.min > 0 || bounds.max > 0);
    return range;
}

MinMaxElement PlainMinMax(const xmlNode* firstChild)
{
    MinMaxElement range;
    const xmlNode* cursor = firstChild;
    const std::string min = NextText(cursor, "Min");
    const std::string max = NextText(cursor, "Max");
    range.min = NumberOf<unsigned>(min);
    range.max = NumberOf<unsigned>(max);
    range.capable = !min.empty() && !max.empty();
    const std::string def = range.capable ? NextText(cursor, "Default") : std::string();
    range.hasDefault = !def.empty();
    range.def = NumberOf<unsigned>(def);
    return range;
}

bool IsNamedDefault(const xmlNode* node)
{
    return node != nullptr && xml::XmlCharToString(node->name) == "Default";
}

RangeElement PlainRange(const xmlNode* start)
{
    RangeElement list;
    const xmlNode* cursor = start;
    for (const std::string& piece : PiecesOf(NextText(cursor, "Range"))) {
        list.range.push_back(NumberOf<int>(piece));
    }
    list.capable = !list.range.empty();
    const std::string def =
        list.capable && IsNamedDefault(start) ? ContentOf(start) : std::string();
    list.hasDefault = !def.empty();
    list.def = NumberOf<unsigned>(def);
    return list;
}

MinMaxOrRangeElement PlainMinMaxOrRange(const xmlNode* firstChild)
{
    MinMaxOrRangeElement either;
    either.minMax = PlainMinMax(firstChild);
    const xmlNode* start = firstChild;
    if (either.minMax.capable) {
        for (int skipped = 0; skipped < 2 && start != nullptr; ++skipped) {
            start = start->next;
        }
        start = IsNamedDefault(start) ? start->next : start;
    }
    either.range = PlainRange(start);
    either.capable = either.minMax.capable || either.range.capable;
    return either;
}

template <class Value>
void RequireSame(const Value& value, const Value& expected, const char* property)
{
    Require(tree::Node({}, value) == tree::Node({}, expected), property);
}

void CheckTypes(xmlNode* element)
{
    RequireSame(OptElement<std::string>(element), OptionsOf(element), "options are attributes");
    MinMaxElement attributes;
    attributes.ParseProp(element);
    RequireSame(attributes, PlainAttributes(element), "zeros are no range");
    MinMaxPropElement bounds(element);
    RequireSame(bounds, MinMaxPropElement(), "this constructor reads nothing");
    bounds.Parse(element);
    RequireSame(bounds, PlainBounds(element), "zeros are a range");
    for (xmlNode* const start : {element->children, element}) {
        RequireSame(MinMaxElement(start), PlainMinMax(start), "bounds are children");
        RequireSame(RangeElement(start), PlainRange(start), "a range is a list");
        RequireSame(MinMaxOrRangeElement(start), PlainMinMaxOrRange(start),
                    "a range is bounds, a list or both");
    }
}

/// Checks one way of reading a text or an option list, starting from a positive and a negative
/// value.
template <class Value, class How>
void CheckKind(xmlNode* element, How how, const Value& expected, const char* property)
{
    Value value{};
    xml::ReadValue(element, value, how);
    Require(value == expected, property);
}

void CheckKinds(xmlNode* element)
{
    const std::string text = ContentOf(element);
    CheckKind(element, as::plain, text, "a text is all there is below the element");
    CheckKind(element, as::plain, text == "true" || text == "1", "a flag is true or 1");
    CheckKind(element, as::textFlag, text == "true", "a text flag is true alone");
    CheckKind(element, as::plain, NumberOf<int>(text), "a number is a stream's");
    CheckKind(element, as::plain, NumberOf<unsigned>(text), "a count is a stream's");
    for (const bool before : {false, true}) {
        bool flag = before;
        xml::ReadValue(element, flag, as::trueOrFalse);
        Require(flag == (text == "true" || (text != "false" && before)),
                "other texts leave a flag alone");
        flag = before;
        xml::ReadValue(element, flag, as::enabledFlag);
        const auto options = OptionsOf(element).opt;
        Require(flag == (options.size() == 1 ? options[0] == "true" : before),
                "one option alone tells a flag");
    }
    const auto options = OptionsOf(element).opt;
    CheckKind(element, as::firstOption, !options.empty() && options[0] == "true",
              "the first option tells a flag");
    std::vector<AlarmHandleType::HandleType> types;
    xml::ReadValue(element, types, as::handleTypes);
    Require(types.size() <= options.size(), "an option stands for one code at most");
}

void CheckBelow(xmlNode* element, int& left)
{
    for (; element != nullptr && left > 0; element = element->next) {
        if (element->type != XML_ELEMENT_NODE) {
            continue;
        }
        --left;
        CheckTypes(element);
        CheckKinds(element);
        CheckBelow(element->children, left);
    }
}

}  // namespace

void Elements(const std::string& text)
{
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
    int left = 64;
    if (document != nullptr) {
        CheckBelow(xmlDocGetRootElement(document.get()), left);
    }
}

}  // namespace Fuzz
