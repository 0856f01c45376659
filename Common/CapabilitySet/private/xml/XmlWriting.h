// Builds request documents from the field lists of records.
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

/// Makes an unlinked element that the caller owns. Null if memory runs out.
xmlNode* NewElement(const char* name);

/// Adds a child holding a text up to its first NUL, escaped. Empty text gives an empty element.
void AddText(xmlNode* parent, const char* name, const std::string& text);

struct FreeNode
{
    void operator()(xmlNode* node) const { xmlFreeNode(node); }
};

/// The element; or null, with the element freed, if memory has run out since QuietLibxml began.
xmlNode* CompleteOrNull(xmlNode* element);

/// Links `child` to `parent`, which then owns it. Throws std::bad_alloc if `child` is null.
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

/// Formats a number as a stream with the classic locale does. If six digits would not read back the
/// same, writes all digits in plain decimal form.
std::string TextOfValue(double value);

template <class Record>
xmlNode* MakeNode(const Record& record, const char* name);

/// Writes one member under `parent`; null items are left out.
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

/// Visits a field list and writes every member in order, set or not.
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
            // Linked first, so that it is freed with its parent if an item fails.
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

/// Makes a record's element, unlinked; the caller owns it. Null if memory runs out.
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

/// Implements CreateXmlNodePtr: returns null if memory runs out anywhere. Never throws.
template <class Record>
xmlNode* CreateNode(const Record& record, const char* name)
{
    const QuietLibxml quiet;
    try {
        return CompleteOrNull(MakeNode(record, name));
    } catch (...) {  // nothing is thrown at clients
        return nullptr;
    }
}

/// Turns a root into a request body: an indented UTF-8 document whose root carries the version
/// unless that is empty. Text in the client's ANSI code page is converted, and characters that XML
/// cannot represent are dropped. Takes ownership of the root. Empty on any failure. Never throws.
std::string DumpDocument(xmlNode* root, const char* version);

}  // namespace CapabilitySet::xml
