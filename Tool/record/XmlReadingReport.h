// Reads a record from an XML text and tells what the text held beside it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/xml/XmlExplain.h"

namespace Tool
{

/// Something that a document held and the record did not take.
struct Untaken
{
    std::string path;
    long line = 0;  ///< 0: not known
    std::string reason;
};

/// What reading a text as a record gave.
struct Reading
{
    std::string problem;  ///< why the text cannot be read as the record; empty when it can
    CapabilitySet::RecordNode values;
    /// The values again, for people: members of which the text holds nothing count as not
    /// announced, and codes are the words that devices use for them.
    CapabilitySet::RecordNode shown;
    std::vector<Untaken> untaken;
};

/// Why `text` is no XML document with that root; empty when it is one.
std::string XmlProblem(const std::string& text, const char* rootName);

/// Whether a value is what a record holds before it is read.
bool IsDefault(const CapabilitySet::RecordNode& node);

/// Replaces codes by the options that they stand for.
void SpellCodes(CapabilitySet::RecordNode& node, CapabilitySet::as::Codes how);
void SpellCodes(CapabilitySet::RecordNode& node, CapabilitySet::as::HandleTypes how);

template <class How>
void SpellCodes(CapabilitySet::RecordNode& /*node*/, How /*how*/)
{
}

template <class Record>
void Adapt(CapabilitySet::RecordNode& shown, xmlNode* firstChild);

/// The name that a list's items bear where its field tells one, else that of the list's element.
inline const char* ItemName(xmlNode* /*list*/, CapabilitySet::as::Items how)
{
    return how.item;
}

template <class How>
const char* ItemName(xmlNode* list, How /*how*/)
{
    return reinterpret_cast<const char*>(list->name);
}

/// Adapts the items of a list, which are elements of one name from `first` on.
template <class Item>
void AdaptItems(const std::vector<std::shared_ptr<Item>>& /*member*/,
                CapabilitySet::RecordNode& list, xmlNode* first, const char* name)
{
    xmlNode* element = first;
    for (CapabilitySet::RecordNode& item : list.children) {
        if (!CapabilitySet::xml::NextElementNamed(element, name)) {
            return;
        }
        Adapt<Item>(item, element->children);
        element = element->next;
    }
}

template <class Member>
concept IsRecordList = requires(Member& m) {
    requires CapabilitySet::xml::IsRecord<std::remove_cvref_t<decltype(*m.front())>>;
};

template <class... How>
constexpr bool kHasOwnElement = (std::is_same_v<How, CapabilitySet::as::Items> || ...);

/// Spells the codes of `shown` out, and marks the members that found no element among these and
/// hold their defaults.
template <class Record>
void Adapt(CapabilitySet::RecordNode& shown, xmlNode* firstChild)
{
    namespace xml = CapabilitySet::xml;
    const xml::FieldMatches matches(xml::IndexOf<Record>(), firstChild);
    std::size_t field = 0;
    Record sample;
    Record::Fields(sample, [&](const char* /*name*/, auto& member, auto... how) {
        using Member = std::remove_reference_t<decltype(member)>;
        CapabilitySet::RecordNode& child = shown.children[field];  // GCOV_EXCL_BR_LINE
        xmlNode* const element = matches[field++];                 // GCOV_EXCL_BR_LINE
        (SpellCodes(child, how), ...);
        if (element == nullptr) {                                    // GCOV_EXCL_BR_LINE
            child.announced = child.announced && !IsDefault(child);  // GCOV_EXCL_BR_LINE
        } else if constexpr (xml::IsRecord<Member>) {
            Adapt<Member>(child, element->children);
        } else if constexpr (IsRecordList<Member> && sizeof...(how) == 1) {
            xmlNode* const first = kHasOwnElement<decltype(how)...> ? element->children : element;
            (AdaptItems(member, child, first, ItemName(element, how)), ...);
        }
    });
}

template <class Record>
constexpr const char* RootName(const char* recordName)
{
    if constexpr (requires { Record::kRoot; }) {
        return Record::kRoot;
    } else {
        return recordName;
    }
}

template <class Record>
Reading ReadXmlRecord(const char* name, const std::string& text)
{
    const char* const root = RootName<Record>(name);
    Reading reading;
    reading.problem = XmlProblem(text, root);
    const Record record(text);
    reading.values = CapabilitySet::Describe(name, record);
    reading.shown = reading.values;
    if constexpr (CapabilitySet::xml::IsRecord<Record>) {
        if (reading.problem.empty()) {
            CapabilitySet::xml::Problem none;
            const auto document =
                CapabilitySet::xml::ParseText(text, CapabilitySet::xml::Form::Plain, none);
            Adapt<Record>(reading.shown, xmlDocGetRootElement(document.get())->children);
            for (auto& each : CapabilitySet::xml::Explain<Record>(text, root)) {
                reading.untaken.push_back(
                    {std::move(each.path), each.line, std::move(each.reason)});
            }
        }
    }
    return reading;
}

}  // namespace Tool
