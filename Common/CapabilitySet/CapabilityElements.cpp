// The element types that capability records share.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/CapabilityElements.h"

#include "CapabilitySet/private/xml/XmlReading.h"

namespace CapabilitySet
{
namespace
{

/// Finds a child, moves the cursor past it and reads its number; false if there is no such child or
/// it is empty.
bool ReadNumber(xmlNode*& cursor, const char* name, unsigned int& value)
{
    if (!xml::NextElementNamed(cursor, name)) {
        return false;
    }
    std::string spare;
    const std::string_view text = xml::TextOf(cursor, spare);
    cursor = cursor->next;
    if (text.empty()) {
        return false;
    }
    value = StringToUInt(text);
    return true;
}

bool IsNamed(const xmlNode* node, const char* name)
{
    return xmlStrEqual(node->name, reinterpret_cast<const xmlChar*>(name)) != 0;
}

}  // namespace

void OptElement<std::string>::Parse(_xmlNode* element)
{
    if (element == nullptr) {
        return;
    }
    xml::EndAtException([&] {
        std::string spare;
        std::string_view text;
        if (xml::AttributeOf(element, "opt", spare, text)) {
            xml::SplitOptions(opt, text);
            capable = true;
        }
        if (xml::AttributeOf(element, "attri", spare, text)) {
            xml::SplitOptions(attri, text);
            capable = true;
        }
    });
}

void MinMaxElement::Parse(_xmlNode* firstChild)
{
    xml::EndAtException([&] {
        xmlNode* cursor = firstChild;
        const bool hasMin = ReadNumber(cursor, "Min", min);
        const bool hasMax = ReadNumber(cursor, "Max", max);
        if (!hasMin || !hasMax) {
            return;
        }
        if (ReadNumber(cursor, "Default", def)) {
            hasDefault = true;
        }
        capable = true;
    });
}

void MinMaxElement::ParseProp(_xmlNode* element)
{
    if (element == nullptr) {
        return;
    }
    xml::EndAtException([&] {
        // Kept: devices announce a range they do not support as 0 to 0.
        if (xml::ReadBounds(element, min, max) && (min != 0 || max != 0)) {
            capable = true;
        }
    });
}

void MinMaxPropElement::Parse(_xmlNode* element)
{
    if (element == nullptr) {
        return;
    }
    xml::EndAtException([&] {
        if (xml::ReadBounds(element, min, max)) {
            capable = true;
        }
    });
}

void RangeElement::Parse(_xmlNode* start)
{
    xml::EndAtException([&] {
        xmlNode* cursor = start;
        if (xml::NextElementNamed(cursor, "Range")) {
            std::vector<std::string> pieces;
            xml::SplitOptions(pieces, xml::GetNodeString(cursor));
            range.clear();
            for (const std::string& piece : pieces) {
                range.push_back(StringToInt(piece));
            }
        }
        if (range.empty()) {
            return;
        }
        // Kept: clients rely on a default being read only from the node where reading starts.
        if (start != nullptr && IsNamed(start, "Default")) {
            const std::string text = xml::GetNodeString(start);
            if (!text.empty()) {
                def = StringToUInt(text);
                hasDefault = true;
            }
        }
        capable = true;
    });
}

void MinMaxOrRangeElement::Parse(_xmlNode* firstChild)
{
    xml::EndAtException([&] {
        minMax.Parse(firstChild);
        xmlNode* start = firstChild;
        if (minMax.capable) {
            capable = true;
            const auto next = [&start] { start = start == nullptr ? nullptr : start->next; };
            next();
            next();
            // Kept: the default belongs to the bounds; the list never gets it.
            if (start != nullptr && IsNamed(start, "Default")) {
                next();
            }
        }
        range.Parse(start);
        if (range.capable) {
            capable = true;
        }
    });
}

}  // namespace CapabilitySet
