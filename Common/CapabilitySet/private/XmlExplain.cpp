// Tells what a document held that a record did not take, and why.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/XmlExplain.h"

namespace CapabilitySet::xml
{

std::string WhyUntaken(const FieldIndex& index, const FieldMatches& matches, xmlNode* element)
{
    const char* const name = reinterpret_cast<const char*>(element->name);
    const std::size_t field = index.Find(name);
    if (field == FieldIndex::kNone)
        return "unknown";
    if (matches[field] == element)
        return {};
    const auto standsBefore = [](const xmlNode* one, const xmlNode* other) {
        while (one != nullptr && one != other)
            one = one->next;
        return one != nullptr && other != nullptr;
    };
    // Only a field that comes earlier in the record and stands further on makes reading go past.
    for (std::size_t earlier = 0; earlier < field; ++earlier) {
        if (standsBefore(element, matches[earlier]))
            return std::string("out of order: stands before ") + index.NameOf(earlier) +
                   ", which is read first";
    }
    return index.IsRepeated(field) ? std::string() : "only the first of this name is read";
}

}  // namespace CapabilitySet::xml
