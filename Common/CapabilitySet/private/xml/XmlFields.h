// Reads the field list of a record from the children of an element.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/Limits.h"
#include "CapabilitySet/OptionTypes.h"
#include "CapabilitySet/private/xml/FieldIndex.h"
#include "CapabilitySet/private/xml/XmlDocument.h"
#include "CapabilitySet/private/xml/XmlReading.h"

// The families of records differ in three properties, which each record states:
// - its flag is `valid` or `capable`, or it has none;
// - Parse(_xmlNode*) takes the element, or its first child if the record has `valid` or states
// `kParseTakesFirstChild`;
// - a nested record counts as read when it is found, or, in records with `capable` and those that
// state `kNestedFlagCounts`, when its own flag is raised.

namespace CapabilitySet::xml
{

template <class Record>
concept HasValid = requires(Record& r) { r.valid = true; };
template <class Record>
concept HasCapable = requires(Record& r) { r.capable = true; };
template <class Record>
concept ParsesNode = requires(Record& r, _xmlNode* node) { r.Parse(node); };
template <class Record>
concept TakesFirstChild = HasValid<Record> || requires { requires Record::kParseTakesFirstChild; };
template <class Record>
concept NestedFlagCounts = HasCapable<Record> || requires { requires Record::kNestedFlagCounts; };

template <class Record>
void RaiseFlag(Record& record)
{
    if constexpr (HasValid<Record>) {
        record.valid = true;
    } else if constexpr (HasCapable<Record>) {
        record.capable = true;
    }
}

template <class Record>
bool FlagOf(const Record& record)
{
    if constexpr (HasValid<Record>) {
        return record.valid;
    } else if constexpr (HasCapable<Record>) {
        return record.capable;
    } else {
        return true;
    }
}

// One overload for each way of reading. The result says whether the owner counts as read.

inline bool ReadValue(xmlNode* node, bool& value, as::Plain /*how*/)
{
    value = GetNodeBool(node);
    return true;
}

inline bool ReadValue(xmlNode* node, int& value, as::Plain /*how*/)
{
    value = GetNodeInt(node);
    return true;
}

inline bool ReadValue(xmlNode* node, unsigned int& value, as::Plain /*how*/)
{
    value = GetNodeUInt(node);
    return true;
}

inline bool ReadValue(xmlNode* node, std::string& value, as::Plain /*how*/)
{
    std::string spare;
    value = TextOf(node, spare);
    return true;
}

/// Numbers of other types.
bool ReadValue(xmlNode* node, long long& value, as::Plain how);
bool ReadValue(xmlNode* node, float& value, as::Plain how);
bool ReadValue(xmlNode* node, double& value, as::Plain how);

inline bool ReadValue(xmlNode* /*node*/, bool& value, as::Presence /*how*/)
{
    value = true;
    return true;
}

inline bool ReadValue(xmlNode* /*node*/, bool& value, as::Marker /*how*/)
{
    value = true;
    return false;
}

bool ReadValue(xmlNode* node, bool& value, as::EnabledFlag how);
bool ReadValue(xmlNode* node, bool& value, as::FirstOption how);
bool ReadValue(xmlNode* node, bool& value, as::TextFlag how);
bool ReadValue(xmlNode* node, bool& value, as::TrueOrFalse how);
bool ReadValue(xmlNode* node, unsigned int& value, as::Quiet how);
bool ReadValue(xmlNode* node, std::vector<int>& codes, as::Codes how);
bool ReadValue(xmlNode* node, std::vector<AlarmHandleType::HandleType>& types, as::HandleTypes how);

template <class Value>
bool ReadValue(xmlNode* node, Value& value, as::Noted<bool> how)
{
    how.flag = true;
    return ReadValue(node, value, as::plain);
}

/// An element type that can read attributes instead of children.
template <class Element>
    requires requires(Element& value, xmlNode* node) { value.ParseProp(node); }
bool ReadValue(xmlNode* node, Element& value, as::Attributes /*how*/)
{
    value.ParseProp(node);
    return true;
}

/// A record or element type with its own Parse.
template <ParsesNode Nested>
bool ReadValue(xmlNode* node, Nested& value, as::Plain /*how*/)
{
    value.Parse(TakesFirstChild<Nested> ? node->children : node);
    return true;
}

/// Appends the elements of this name among `first` and its following siblings.
template <class Item>
void AppendItems(xmlNode* first, const char* name, std::vector<Item>& items)
{
    for (xmlNode* cursor = first; NextElementNamed(cursor, name); cursor = cursor->next) {
        if (items.size() >= limits::kListEntries && log::ListIsCut()) {
            return;
        }
        Item item{};
        ReadValue(cursor, item, as::plain);
        items.push_back(std::move(item));
    }
}

template <class Item>
void AppendItems(xmlNode* first, const char* name, std::vector<std::shared_ptr<Item>>& items)
{
    for (xmlNode* cursor = first; NextElementNamed(cursor, name); cursor = cursor->next) {
        if (items.size() >= limits::kListEntries && log::ListIsCut()) {
            return;
        }
        auto item = std::make_shared<Item>();
        ReadValue(cursor, *item, as::plain);
        items.push_back(std::move(item));
    }
}

template <class Item>
bool ReadValue(xmlNode* first, std::vector<Item>& items, as::Repeated /*how*/)
{
    // `first` has the field's own name.
    AppendItems(first, reinterpret_cast<const char*>(first->name), items);
    return true;
}

template <class Item>
bool ReadValue(xmlNode* list, std::vector<Item>& items, as::Items how)
{
    AppendItems(list->children, how.item, items);
    return true;
}

template <class Member, class How>
concept ReadableAs =
    requires(xmlNode* node, Member& member, How how) { ReadValue(node, member, how); };

/// The field names of a record type and their order, collected on first use.
template <class Record>
const FieldIndex& IndexOf()
{
    static const FieldIndex index = [] {
        FieldIndex names;
        Record sample;
        Record::Fields(sample, [&names](const char* name, auto& /*member*/, auto... how) {
            names.Add(name, (std::is_same_v<decltype(how), as::Repeated> || ...));
        });
        names.Finish();
        return names;
    }();
    return index;
}

/// Visits a field list and reads each member from the element that was matched to it.
template <class Record>
class FieldReader
{
public:
    explicit FieldReader(xmlNode* firstChild) : matches_(IndexOf<Record>(), firstChild) {}

    template <class Member, class How = as::Plain>
    void operator()(const char* /*name*/, Member& member, How how = {})
    {
        static_assert(ReadableAs<Member, How>,
                      "A field of this type and tag cannot be read from XML: give the type a "
                      "Parse(_xmlNode*), or add a ReadValue overload to XmlFields.h, or use a tag "
                      "of FieldTags.h that fits the type.");
        xmlNode* const node = matches_[field_++];
        if constexpr (ReadableAs<Member, How>) {
            if (node == nullptr || !ReadValue(node, member, how)) {
                return;
            }
            if constexpr (NestedFlagCounts<Record> && HasFields<Member>) {
                read_ = read_ || FlagOf(member);
            } else {
                read_ = true;
            }
        }
    }

    /// Whether a field was read that makes the record count as read.
    [[nodiscard]] bool Read() const { return read_; }

    /// Whether the element of a field was found.
    [[nodiscard]] bool Found(const char* name) const
    {
        return matches_[IndexOf<Record>().Find(name)] != nullptr;
    }

private:
    FieldMatches matches_;
    std::size_t field_ = 0;
    bool read_ = false;
};

/// Reads a record's fields from the children of an element. May throw std::bad_alloc.
template <class Record>
void ReadFields(Record& record, xmlNode* firstChild)
{
    FieldReader<Record> reader(firstChild);
    Record::Fields(record, reader);
    if (reader.Read()) {
        RaiseFlag(record);
    }
}

/// Implements a record's Parse(_xmlNode*): `node` is the element or its first child, whichever the
/// record takes; null reads nothing. Never throws.
template <class Record>
void ParseNode(Record& record, xmlNode* node)
{
    xmlNode* firstChild = node;
    if constexpr (!TakesFirstChild<Record>) {
        firstChild = node == nullptr ? nullptr : node->children;
    }
    if (firstChild == nullptr) {
        return;
    }
    EndAtException([&] { ReadFields(record, firstChild); });
}

/// Implements the Parse(const std::string&) of a root record.
template <class Record>
void ParseDocument(Record& record, const std::string& text, const char* rootName,
                   const log::Place& place, Form form = Form::Plain, const RootRule& rule = {})
{
    WithRoot(
        text, rootName, place, [&](xmlNode* root) { ReadFields(record, root->children); }, form,
        rule);
}

}  // namespace CapabilitySet::xml
