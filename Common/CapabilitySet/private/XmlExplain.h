// Tells what a document held that a record did not take, and why.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/private/XmlFields.h"

namespace CapabilitySet::xml
{

/// An element that was not read.
struct Untaken
{
    std::string path;  ///< names from the root's child down, "HardwareCapability/USBNum"
    long line;         ///< in the document
    std::string reason;
};

/// Adds what reading passes over among an element's children.
void ExplainPassedOver(const FieldIndex& index, const FieldMatches& matches, xmlNode* firstChild,
                       const std::string& path, std::vector<Untaken>& untaken);

template <class Record>
void ExplainChildren(const Record& sample, xmlNode* firstChild, const std::string& path,
                     std::vector<Untaken>& untaken)
{
    const FieldIndex& index = IndexOf<Record>();
    const FieldMatches matches(index, firstChild);
    ExplainPassedOver(index, matches, firstChild, path, untaken);
    std::size_t field = 0;
    Record::Fields(sample, [&](const char* name, const auto& member, auto... /*how*/) {
        xmlNode* const element = matches[field++];
        if constexpr (IsRecord<std::remove_const_t<std::remove_reference_t<decltype(member)>>>) {
            if (element != nullptr)
                ExplainChildren(member, element->children, path + name + "/", untaken);
        }
    });
}

/// What reading `text` as a record of this type passes over, in the document's order record by
/// record. Empty for a document that cannot be read.
template <class Record>
std::vector<Untaken> Explain(const std::string& text, const char* rootName)
{
    std::vector<Untaken> untaken;
    Problem problem;
    const Document document = ParseText(text, Form::Plain, problem);
    xmlNode* root = document == nullptr ? nullptr : xmlDocGetRootElement(document.get());
    if (NextElementNamed(root, rootName))
        ExplainChildren(Record(), root->children, {}, untaken);
    return untaken;
}

}  // namespace CapabilitySet::xml
