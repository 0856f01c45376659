// Tells what a document held that a record did not take, and why.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "CapabilitySet/private/xml/XmlFields.h"

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

/// Adds what stands between the items of a list that has an element of its own.
void ExplainBetweenItems(xmlNode* firstChild, const char* item, const std::string& path,
                         std::vector<Untaken>& untaken);

template <class Record>
void ExplainChildren(xmlNode* firstChild, const std::string& path, std::vector<Untaken>& untaken);

/// What a list of records holds, be it of records or of pointers to them.
template <class Member>
struct ItemOf
{
    using Type = void;
};
template <class Item>
struct ItemOf<std::vector<Item>>
{
    using Type = Item;
};
template <class Item>
struct ItemOf<std::vector<std::shared_ptr<Item>>>
{
    using Type = Item;
};

template <class Item>
void ExplainItems(xmlNode* first, const char* name, const std::string& path,
                  std::vector<Untaken>& untaken)
{
    if constexpr (IsRecord<Item>) {
        for (xmlNode* item = first; NextElementNamed(item, name); item = item->next) {
            ExplainChildren<Item>(item->children, path + name + "/", untaken);
        }
    }
}

/// Adds what a field's element, which was found, holds that the field does not take.
template <class Member, class How>
void ExplainMember(xmlNode* element, const std::string& path, std::vector<Untaken>& untaken,
                   [[maybe_unused]] How how)
{
    using Item = typename ItemOf<Member>::Type;
    const auto* const name = reinterpret_cast<const char*>(element->name);
    if constexpr (std::is_same_v<How, as::Repeated>) {
        ExplainItems<Item>(element, name, path, untaken);
    } else if constexpr (std::is_same_v<How, as::Items>) {
        const std::string below = path + name + "/";
        ExplainBetweenItems(element->children, how.item, below, untaken);
        ExplainItems<Item>(element->children, how.item, below, untaken);
    } else if constexpr (IsRecord<Member>) {
        ExplainChildren<Member>(element->children, path + name + "/", untaken);
    }
}

template <class Record>
void ExplainChildren(xmlNode* firstChild, const std::string& path, std::vector<Untaken>& untaken)
{
    const FieldIndex& index = IndexOf<Record>();
    const FieldMatches matches(index, firstChild);
    ExplainPassedOver(index, matches, firstChild, path, untaken);
    std::size_t field = 0;
    Record sample;
    Record::Fields(
        sample, [&]<class Member, class How = as::Plain>(const char* /*name*/, Member& /*member*/,
                                                         How how = {}) {
            xmlNode* const element = matches[field++];
            if (element != nullptr) {
                ExplainMember<Member>(element, path, untaken, how);
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
    if (NextElementNamed(root, rootName)) {
        ExplainChildren<Record>(root->children, {}, untaken);
    }
    return untaken;
}

}  // namespace CapabilitySet::xml
