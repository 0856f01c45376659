// Tells what a document held that a record did not take, and why.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/XmlExplain.h"

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
        if (node->type == XML_ELEMENT_NODE)
            visit(node, ++position);
    }
}

/// Why the element at a position, of a field that was matched to another element or to none, is
/// not read; empty for an item of a repeated field. `read` holds where each field is read.
std::string WhyPassedOver(const FieldIndex& index, const std::vector<std::size_t>& read,
                          std::size_t field, std::size_t position)
{
    // Only a field that comes earlier in the record and stands further on makes reading go past.
    for (std::size_t earlier = 0; earlier < field; ++earlier) {
        if (read[earlier] > position)
            return std::string("out of order: stands before ") + index.NameOf(earlier) +
                   ", which is read first";
    }
    return index.IsRepeated(field) ? std::string() : "only the first of this name is read";
}

}  // namespace

void ExplainPassedOver(const FieldIndex& index, const FieldMatches& matches, xmlNode* firstChild,
                       const std::string& path, std::vector<Untaken>& untaken)
{
    std::vector<std::size_t> read(index.Size());
    ForEachElement(firstChild, [&](const xmlNode* element, std::size_t position) {
        const std::size_t field = FieldOf(index, element);
        if (field != FieldIndex::kNone && matches[field] == element)
            read[field] = position;
    });
    ForEachElement(firstChild, [&](const xmlNode* element, std::size_t position) {
        const std::size_t field = FieldOf(index, element);
        if (field != FieldIndex::kNone && matches[field] == element)
            return;
        std::string reason =
            field == FieldIndex::kNone ? "unknown" : WhyPassedOver(index, read, field, position);
        if (!reason.empty())
            untaken.push_back(
                {path + XmlCharToString(element->name), xmlGetLineNo(element), std::move(reason)});
    });
}

}  // namespace CapabilitySet::xml
