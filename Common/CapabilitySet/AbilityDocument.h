// The record of a family whose members are the device's own: everything the device said.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "CapabilitySet/CBaseCapability.h"

struct _xmlNode;

namespace CapabilitySet
{

/// An element of an ability document.
struct CAPABILITYSET_API AbilityElement
{
    std::string name;
    std::string
        text;  ///< the element's own text; of one that holds elements only what is not blank
    std::vector<std::pair<std::string, std::string>> attributes;  ///< in the document's order
    std::vector<AbilityElement> children;                         ///< in the document's order

    /// The first element at a path of names below this one ("Display/windowNum"), or an element
    /// without a name when there is none, so that look-ups can be chained without checks.
    [[nodiscard]] const AbilityElement& Find(std::string_view path) const;

    /// An attribute's text, or an empty one.
    [[nodiscard]] const std::string& Attribute(std::string_view attribute) const;

    /// Whether this is an element at all.
    explicit operator bool() const { return !name.empty(); }

    friend bool operator==(const AbilityElement&, const AbilityElement&) = default;
};

/// A whole answer as an ordered tree. Capable when the answer's root is the expected one and holds
/// an element; as in every record, a root without any reads nothing.
struct CAPABILITYSET_API AbilityDocument : CBaseCapability
{
    AbilityElement root;

    [[nodiscard]] const AbilityElement& Find(std::string_view path) const
    {
        return root.Find(path);
    }

protected:
    /// Reads a document whose root must bear this name; any other leaves the record as it was,
    /// after one line in the log. Nothing is thrown.
    void ParseDocument(const std::string& text, const char* rootName);
    void ParseElement(_xmlNode* element);
};

/// What every record of this kind has: construction and reading, by its own root's name `kRoot`.
template <class Record>
struct AbilityRecord : AbilityDocument
{
    AbilityRecord() = default;
    explicit AbilityRecord(const std::string& text) { Parse(text); }
    explicit AbilityRecord(_xmlNode* element) { Parse(element); }

    /// Reads a whole document; an empty text reads nothing.
    void Parse(const std::string& text) { ParseDocument(text, Record::kRoot); }
    /// Reads the record's own element; null reads nothing.
    void Parse(_xmlNode* element) { ParseElement(element); }
};

}  // namespace CapabilitySet
