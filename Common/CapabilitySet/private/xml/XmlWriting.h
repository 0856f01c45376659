// Builds request documents from records' field lists.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <memory>
#include <string>
#include <type_traits>

#include <libxml/tree.h>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/private/xml/QuietLibxml.h"

namespace CapabilitySet::xml
{

/// Makes an unlinked element; the caller owns it. Null when memory ran out.
xmlNode* NewElement(const char* name);

/// Adds a child that holds a text up to its first NUL, escaped; an empty text gives an empty
/// element.
void AddText(xmlNode* parent, const char* name, const std::string& text);

struct FreeNode
{
    void operator()(xmlNode* node) const { xmlFreeNode(node); }
};

/// The element, or null, the element freed, when memory has run out since QuietLibxml began.
xmlNode* CompleteOrNull(xmlNode* element);

/// Links `child` below `parent`, which then owns it; null is memory that ran out: std::bad_alloc.
void AddChild(xmlNode* parent, xmlNode* child);

inline std::string TextOfValue(const std::string& value)
{
    return value;
}

inline std::string TextOfValue(bool value)
{
    return value ? "true" : "false";
}

template <std::integral Number>
    requires(!std::same_as<Number, bool>)
std::string TextOfValue(Number value)
{
    return std::to_string(value);
}

/// As a stream of the classic locale writes it; where its six digits would not read back the same,
/// all digits of the plain decimal form.
std::string TextOfValue(double value);

template <class Record>
xmlNode* MakeNode(const Record& record, const char* name);

/// Writes one member below `parent`; an item that points nowhere is left out.
template <class Member>
void WriteMember(xmlNode* parent, const char* name, const Member& member)
{
    if constexpr (requires { TextOfValue(member); }) {
        AddText(parent, name, TextOfValue(member));
    } else if constexpr (requires { *member; }) {
        if (member != nullptr) {
            WriteMember(parent, name, *member);
        }
    } else {
        AddChild(parent, MakeNode(member, name));
    }
}

/// Visits a field list and writes each member, set or not, in the list's order.
class FieldWriter
{
public:
    explicit FieldWriter(xmlNode* parent) : parent_(parent) {}

    template <class Member, class How = as::Plain>
    void operator()(const char* name, const Member& member, [[maybe_unused]] How how = {}) const
    {
        if constexpr (std::is_same_v<How, as::Repeated>) {
            for (const auto& item : member) {
                WriteMember(parent_, name, item);
            }
        } else if constexpr (std::is_same_v<How, as::Items>) {
            // Linked first, so that its owner frees it whatever happens to the items.
            xmlNode* const list = NewElement(name);
            AddChild(parent_, list);
            for (const auto& item : member) {
                WriteMember(list, how.item, item);
            }
        } else {
            WriteMember(parent_, name, member);
        }
    }

private:
    xmlNode* parent_;
};

/// A record's element, unlinked; the caller owns it. Null when memory ran out.
template <class Record>
xmlNode* MakeNode(const Record& record, const char* name)
{
    xmlNode* const element = NewElement(name);
    if (element == nullptr) {
        return nullptr;
    }
    std::unique_ptr<xmlNode, FreeNode> owner(element);
    Record::Fields(record, FieldWriter(element));
    return owner.release();
}

/// A record's element as CreateXmlNodePtr gives it: null instead of an exception, and instead of an
/// element that memory ran out in.
template <class Record>
xmlNode* CreateNode(const Record& record, const char* name)
{
    const QuietLibxml quiet;
    try {
        return CompleteOrNull(MakeNode(record, name));
    } catch (...) {  // callers are exported, and nothing is thrown at clients
        return nullptr;
    }
}

/// The body that a root makes: an indented UTF-8 document whose root carries the version, unless
/// that is empty; text that is in the client's ANSI code page is converted, and characters that no
/// XML document can hold are dropped. Takes the root over. Empty when anything fails. Never throws.
std::string DumpDocument(xmlNode* root, const char* version);

}  // namespace CapabilitySet::xml
