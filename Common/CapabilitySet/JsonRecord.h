// What the JSON records have in common: their own key, their members, and all else the device said.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// A part of a JSON document below its root. `present` is set once every member has been read, so
/// it stays false for a part that is missing or holds a member of the wrong kind. Outside a list a
/// part is written only while it is set.
template <class Part>
struct CAPABILITYSET_API JsonPart
{
    bool present = false;

    /// Reads the part's members; null reads nothing. Throws what JsonCpp throws for a member of the
    /// wrong kind; the document that holds the part ends its reading there.
    void Parse(const Json::Value& value);
};

/// A JSON document whose members stand under the key `Record::kKey`, or at its top level when that
/// is empty. Those of a record that has a constant `kMayLackKey` stand at the top level too, in
/// answers without the key.
template <class Record>
struct CAPABILITYSET_API JsonRecord
{
    /// Everything the device said under the key, members without a field of their own included.
    Json::Value root;

    /// Reads an answer. An empty text and one that is not JSON change nothing. Each listed member
    /// is read, a missing one as false, 0 or empty; array entries are appended. At a member of the
    /// wrong kind reading ends: what was read before stays. Never throws.
    void Parse(const std::string& text);

    /// The record as a request body: `root` with every listed member written over it, styled. A
    /// value that reads as its member stays of the kind that the device sent. An item of a list
    /// goes over the entry it was read from, by its first member or else by its place. Empty when
    /// memory ran out.
    [[nodiscard]] std::string Make() const;

    /// The same under the name that search descriptions have for it.
    [[nodiscard]] std::string CreatJsonParser() const { return Make(); }
};

/// A document whose members are the device's own: all of it is in `root`.
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
