// Explains how a text was read as a record: what the record holds, and what it did not take.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/Export.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/RecordTree.h"

struct _xmlNode;

namespace CapabilitySet
{

/// Something that a document held and the record did not take.
struct CAPABILITYSET_API Untaken
{
    std::string path;       ///< names from the root's child down, "HardwareCapability/USBNum"
    long line = 0;          ///< in the document; 0: not known
    std::string reason;     ///< a phrase for people
    std::size_t count = 1;  ///< elements that were lost for this reason
};

/// What reading a text as a record gave.
struct CAPABILITYSET_API Reading
{
    std::string problem;  ///< why the text cannot be read as the record; empty when it can
    RecordNode values;    ///< the record
    /// The record for people: a member for which the document holds nothing counts as not
    /// announced, and codes are the words that devices use for them.
    RecordNode shown;
    std::vector<Untaken> untaken;  ///< record by record, each in the document's order
};

struct RecordShape;

/// What explaining needs to know of one field of an XML record.
struct CAPABILITYSET_API FieldShape
{
    const char* name = nullptr;
    const char* item = nullptr;           ///< of a list with an element of its own: its items' name
    bool isRepeated = false;              ///< a list among the record's own children
    bool holdsHandleTypes = false;        ///< alarm handling options
    const OptionCodes* codes = nullptr;   ///< the table of a field of codes
    const RecordShape* record = nullptr;  ///< of a nested record, or of a list's items
};

/// The field list of an XML record as data.
struct CAPABILITYSET_API RecordShape
{
    std::vector<FieldShape> fields;
};

/// The type of a list's items, be they held by value or by pointer; of any other member its own.
template <class Member>
struct ItemOf
{
    using Type = Member;
};
template <class Item>
struct ItemOf<std::vector<Item>> : ItemOf<Item>
{
};
template <class Item>
struct ItemOf<std::shared_ptr<Item>> : ItemOf<Item>
{
};

/// Notes what a field's tag tells.
template <class How>
void NoteTag(FieldShape& field, [[maybe_unused]] How how)
{
    field.isRepeated = std::is_same_v<How, as::Repeated>;
    field.holdsHandleTypes = std::is_same_v<How, as::HandleTypes>;
    if constexpr (std::is_same_v<How, as::Items>) {
        field.item = how.item;
    } else if constexpr (std::is_same_v<How, as::Codes>) {
        field.codes = &how.table;
    }
}

/// The shape of a record type, made on first use.
template <HasFields Record>
const RecordShape& ShapeOf()
{
    static const RecordShape shape = [] {
        RecordShape made;
        const Record sample;
        Record::Fields(
            sample, [&made]<class Member>(const char* name, const Member& /*member*/, auto... how) {
                FieldShape field{.name = name};
                (NoteTag(field, how), ...);
                if constexpr (HasFields<typename ItemOf<Member>::Type>) {
                    field.record = &ShapeOf<typename ItemOf<Member>::Type>();
                }
                made.fields.push_back(field);
            });
        return made;
    }();
    return shape;
}

/// A record that is read from XML, as opposed to JSON.
template <class Record>
concept ReadsXml = requires { Record::kRoot; } || requires { Record::kElement; } ||
                   requires(Record& record, _xmlNode* node) { record.Parse(node); };

/// The name of a record's root element; of one that is no document of its own, null.
template <ReadsXml Record>
constexpr const char* RootNameOf()
{
    if constexpr (requires { Record::kRoot; }) {
        return Record::kRoot;
    } else if constexpr (requires { Record::kElement; }) {
        return Record::kElement;
    } else {
        return nullptr;
    }
}

/// Explains a text that was read into `values`. `shape` is null for a record that keeps the whole
/// document: nothing of it is lost. A root named `requestRoot` is accepted too, unless it is null.
CAPABILITYSET_API Reading ExplainXml(RecordNode values, const std::string& text,
                                     const char* rootName, const RecordShape* shape,
                                     const char* requestRoot = nullptr);

/// The same for JSON, where a record takes every member: those it has no field for stay in its
/// `root`. `key` is the one that the record stands under, empty at the top level.
CAPABILITYSET_API Reading ExplainJson(RecordNode values, const std::string& text,
                                      const std::string& key);

/// Reads a text as a record and explains what was read. For the lists of pan-tilt-zoom channels ask
/// HasEmptyItem first (XMLConfig/PTZPresetCfg.h): their readers never end on an empty item.
template <class Record>
Reading Explain(std::string name, const std::string& text)
{
    if constexpr (ReadsXml<Record>) {
        const RecordShape* shape = nullptr;
        const char* requestRoot = nullptr;
        if constexpr (requires { Record::kRequestRoot; }) {
            requestRoot = Record::kRequestRoot;
        }
        if constexpr (HasFields<Record>) {
            shape = &ShapeOf<Record>();
        }
        return ExplainXml(Describe(std::move(name), Record(text)), text, RootNameOf<Record>(),
                          shape, requestRoot);
    } else {
        Record record;
        bool isRead = true;
        if constexpr (std::same_as<decltype(record.Parse(text)), bool>) {
            isRead = record.Parse(text);
        } else {
            record.Parse(text);
        }
        std::string key;
        if constexpr (requires { Record::kKey; }) {
            key = Record::kKey;
        }
        Reading reading = ExplainJson(DescribeWhole(std::move(name), record), text, key);
        if (!isRead && reading.problem.empty()) {
            reading.problem = "it does not hold what the record is read from";
        }
        return reading;
    }
}

}  // namespace CapabilitySet
