// Tells what a document held that a record did not take, and why.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlExplain.h"

#include <cstring>
#include <utility>

namespace CapabilitySet::xml
{
namespace
{

std::size_t FieldOf(const FieldIndex& index, const xmlNode* element)
{
    return index.Find(reinterpret_cast<const char*>(element->name));
}

/// Calls `visit(element, position)` for each element from `firstChild` on.
template <class Visit>
void ForEachElement(xmlNode* firstChild, Visit&& visit)
{
    std::size_t position = 0;
    for (xmlNode* node = firstChild; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE) {
            visit(node, ++position);
        }
    }
}

/// Where reading a field ends: at the one element it is read from, for a list at its last item. 0:
/// the field is not read.
std::vector<std::size_t> EndsOfFields(const FieldIndex& index, const FieldMatches& matches,
                                      xmlNode* firstChild)
{
    std::vector<std::size_t> ends(index.Size());
    ForEachElement(firstChild, [&](const xmlNode* element, std::size_t position) {
        const std::size_t field = FieldOf(index, element);
        if (field == FieldIndex::kNone) {
            return;
        }
        if (matches[field] == element || (index.IsRepeated(field) && ends[field] != 0)) {
            ends[field] = position;
        }
    });
    return ends;
}

/// Why the element at a position, of a field that takes it not, is not read.
std::string WhyPassedOver(const FieldIndex& index, const std::vector<std::size_t>& ends,
                          std::size_t field, std::size_t position)
{
    // Only a field that comes earlier in the record and stands further on makes reading go past.
    for (std::size_t earlier = 0; earlier < field; ++earlier) {
        if (ends[earlier] > position) {
            return std::string("out of order: stands before ") + index.NameOf(earlier) +
                   ", which is read first";
        }
    }
    return "only the first of this name is read";
}

void Add(const xmlNode* element, const std::string& path, std::string reason,
         std::vector<Untaken>& untaken)
{
    untaken.push_back(
        {path + XmlCharToString(element->name), xmlGetLineNo(element), std::move(reason)});
}

constexpr const char* kUnknown = "unknown";

}  // namespace

void ExplainPassedOver(const FieldIndex& index, const FieldMatches& matches, xmlNode* firstChild,
                       const std::string& path, std::vector<Untaken>& untaken)
{
    const std::vector<std::size_t> ends = EndsOfFields(index, matches, firstChild);
    std::vector<bool> begun(index.Size());
    ForEachElement(firstChild, [&](const xmlNode* element, std::size_t position) {
        const std::size_t field = FieldOf(index, element);
        if (field == FieldIndex::kNone) {
            return Add(element, path, kUnknown, untaken);
        }
        const bool isFirst = matches[field] == element;
        begun[field] = begun[field] || isFirst;
        if (!isFirst && !(index.IsRepeated(field) && begun[field])) {
            Add(element, path, WhyPassedOver(index, ends, field, position), untaken);
        }
    });
}

void ExplainBetweenItems(xmlNode* firstChild, const char* item, const std::string& path,
                         std::vector<Untaken>& untaken)
{
    ForEachElement(firstChild, [&](const xmlNode* element, std::size_t /*position*/) {
        if (std::strcmp(reinterpret_cast<const char*>(element->name), item) != 0) {
            Add(element, path, kUnknown, untaken);
        }
    });
}

}  // namespace CapabilitySet::xml
