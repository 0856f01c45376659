// Every record type of the catalogue, compiled once for all tests: read, compared, sampled, made.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

#include <json/value.h>

#include "CapabilitySet/RecordTree.h"

struct _xmlNode;

namespace TestSupport
{

class RecordGenerator;

/// A record whose type its holder need not know.
class AnyRecord
{
public:
    virtual ~AnyRecord() = default;

    /// Reads a text; for a record that is no document, an element as the root of one.
    virtual void Parse(const std::string& text) = 0;
    [[nodiscard]] virtual CapabilitySet::RecordNode Describe() const = 0;
    /// Whether both are the same, flags and kept documents included. The other is of the same type.
    [[nodiscard]] virtual bool IsSame(const AnyRecord& other) const = 0;
    /// Whether the record counts as read; true for one without a flag.
    [[nodiscard]] virtual bool IsFlagUp() const = 0;
    /// The record as a request body; empty for one that is never sent.
    [[nodiscard]] virtual std::string Make() const = 0;
    /// What a JSON record keeps of the device's words; null for any other.
    virtual Json::Value* Root() = 0;
    /// Gives the members what the generator makes.
    virtual void Fill(RecordGenerator& generator) = 0;
};

using RecordPointer = std::unique_ptr<AnyRecord>;

/// What a text is to a record.
enum class Verdict
{
    None,    ///< empty, malformed, or of another root
    Fits,    ///< read
    Endless  ///< a list with an item without children, on which its reader never ends
};

enum class RecordKind
{
    XmlDocument,  ///< read by a field list
    XmlPart,      ///< the same, from an element of a document alone
    XmlTree,      ///< keeps a whole document as elements
    Json
};

/// A field of an XML record, and where its member stands.
struct FieldLayout
{
    std::string name;
    std::string element;  ///< one that fills the member; empty when no document can hold it
    bool counts;          ///< makes the record count as read
    std::size_t offset;
    std::size_t size;
    std::size_t alignment;
};

struct RecordClass
{
    std::string name;  ///< without its namespace
    RecordKind kind;
    std::string root;    ///< the root element, or the key of a JSON record
    std::string sample;  ///< a document that fills every member
    bool hasFlag = false;
    bool isSent = false;              ///< Make writes a body
    std::vector<FieldLayout> fields;  ///< of records that are read by a field list from XML
    std::size_t size = 0;
    std::size_t alignment = 0;
    std::vector<std::string> names;  ///< of all its fields
    RecordPointer (*make)() = nullptr;
    /// Reads a text the plain way.
    Verdict (*readPlainly)(const std::string& text, AnyRecord& record) = nullptr;

    [[nodiscard]] bool IsJson() const { return kind == RecordKind::Json; }
    [[nodiscard]] RecordPointer Read(const std::string& text) const
    {
        RecordPointer record = make();
        record->Parse(text);
        return record;
    }
};

/// All record types of the catalogue, and the parts of its XML records that have a field list.
std::span<const RecordClass> AllRecordTypes();

/// The type of that name; throws when there is none.
const RecordClass& RecordTypeNamed(const std::string& name);

}  // namespace TestSupport
