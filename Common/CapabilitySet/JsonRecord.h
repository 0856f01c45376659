// Bases of JSON records and of the parts inside them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// An object inside a JSON document. Outside a list, a part is written only if `present` is set.
template <class Part>
struct CAPABILITYSET_API JsonPart
{
    bool present = false;  ///< every member was read; false for a missing part

    /// Reads the part's members; null reads nothing. Throws what JsonCpp throws for a member of the
    /// wrong kind; reading of the document ends there.
    void Parse(const Json::Value& value);
};

/// A JSON document whose members are under the key `Record::kKey`, or at its top level if the key
/// is empty. A record with a constant `kMayLackKey` also reads them from the top level of a
/// document without the key.
template <class Record>
struct CAPABILITYSET_API JsonRecord
{
    /// All that the device sent under the key, including members without a field here.
    Json::Value root;

    /// Reads an answer. An empty text or one that is not JSON changes nothing. A missing member
    /// reads as false, 0 or empty; list items are appended. Reading ends at a member of the wrong
    /// kind; what was read before stays. Never throws.
    void Parse(const std::string& text);

    /// The record as a request body: `root`, with the record's members written over it, styled. A
    /// member whose value was not changed keeps the kind that the device sent. A list item is
    /// written over the entry it was read from, matched by its first member, or by position among
    /// the entries that lack that; an item that matches none is written alone. Empty when memory
    /// ran out.
    [[nodiscard]] std::string Make() const;

    /// The same, under the name that search descriptions use.
    [[nodiscard]] std::string CreatJsonParser() const
    {
        return static_cast<const Record&>(*this).Make();
    }
};

/// A document whose members the device defines: all of it is in `root`.
template <class Record>
struct JsonTree : JsonRecord<Record>
{
    static constexpr const char* kKey = "";

    template <class Self, class Field>
    static void Fields([[maybe_unused]] Self& r, [[maybe_unused]] Field&& field)
    {
    }
};

}  // namespace CapabilitySet
