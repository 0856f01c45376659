// Records whose members the device defines: the whole answer as a tree of elements.
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

/// One element of an ability document.
struct CAPABILITYSET_API AbilityElement
{
    std::string name;  ///< element name
    std::string text;  ///< own text; whitespace is dropped if it has children
    /// Names and values of the attributes, in document order.
    std::vector<std::pair<std::string, std::string>> attributes;
    std::vector<AbilityElement> children;  ///< child elements, in document order

    /// The first element at a path of names below this one, such as "Display/windowNum". Returns an
    /// element without a name if there is none, so look-ups can be chained without checks.
    [[nodiscard]] const AbilityElement& Find(std::string_view path) const;

    /// The value of an attribute, empty if there is none.
    [[nodiscard]] const std::string& Attribute(std::string_view attribute) const;

    /// False for the element that Find returns when there is none.
    explicit operator bool() const { return !name.empty(); }

    friend bool operator==(const AbilityElement&, const AbilityElement&) = default;
};

/// A whole answer as an ordered tree. Capable when the root is the expected one and has at least
/// one child element.
struct CAPABILITYSET_API AbilityDocument : CBaseCapability
{
    AbilityElement root;  ///< root element of the answer

    /// As AbilityElement::Find, below the root.
    [[nodiscard]] const AbilityElement& Find(std::string_view path) const
    {
        return root.Find(path);
    }

protected:
    /// Reads a root element, whatever its name; null reads nothing. Never throws.
    void ParseElement(_xmlNode* element);
};

/// Construction and reading for a record whose document root is named `Record::kRoot`. Some
/// devices answer with the root they were asked with instead; where that differs it is
/// `Record::kRequestRoot`, and accepted as well.
template <class Record>
struct CAPABILITYSET_API AbilityRecord : AbilityDocument
{
    AbilityRecord() = default;
    explicit AbilityRecord(const std::string& text) { Parse(text); }
    explicit AbilityRecord(_xmlNode* element) { Parse(element); }

    /// Reads a whole document; an empty text reads nothing. Any other root leaves the record as it
    /// was, after one log line. Never throws.
    void Parse(const std::string& text);
    /// Reads the record's own element; null reads nothing.
    void Parse(_xmlNode* element) { ParseElement(element); }
};

}  // namespace CapabilitySet
