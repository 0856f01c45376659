// Reads a record from an XML text and tells what the text held beside it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/RecordTree.h"
#include "CapabilitySet/private/XmlExplain.h"

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
    /// The values again, where members of which the text holds nothing count as not announced.
    CapabilitySet::RecordNode shown;
    std::vector<Untaken> untaken;
};

/// Why `text` is no XML document with that root; empty when it is one.
std::string XmlProblem(const std::string& text, const char* rootName);

/// Whether a value is what a record holds before it is read.
bool IsDefault(const CapabilitySet::RecordNode& node);

/// Marks the members of `shown` that found no element among these and hold their defaults.
template <class Record>
void MarkAbsent(CapabilitySet::RecordNode& shown, xmlNode* firstChild)
{
    namespace xml = CapabilitySet::xml;
    const xml::FieldMatches matches(xml::IndexOf<Record>(), firstChild);
    std::size_t field = 0;
    Record sample;
    Record::Fields(sample, [&](const char* /*name*/, auto& member, auto... /*how*/) {
        using Member = std::remove_reference_t<decltype(member)>;
        CapabilitySet::RecordNode& child = shown.children[field];
        xmlNode* const element = matches[field++];
        if (element == nullptr) {
            child.announced = child.announced && !IsDefault(child);
        } else if constexpr (xml::IsRecord<Member>) {
            MarkAbsent<Member>(child, element->children);
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
            MarkAbsent<Record>(reading.shown, xmlDocGetRootElement(document.get())->children);
            for (auto& each : CapabilitySet::xml::Explain<Record>(text, root)) {
                reading.untaken.push_back(
                    {std::move(each.path), each.line, std::move(each.reason)});
            }
        }
    }
    return reading;
}

}  // namespace Tool
