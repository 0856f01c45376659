// Finds all fields of a record in one pass over an element's children.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include <libxml/tree.h>

namespace CapabilitySet::xml
{

/// The names of a record's fields in reading order, and where each stands in that order.
class FieldIndex
{
public:
    /// A field as its list gives it; a repeated one takes every element of its name that follows.
    void Add(const char* name, bool repeated);

    /// Makes the look-up; called once, after the last Add.
    void Finish();

    [[nodiscard]] std::size_t Size() const { return fields_.size(); }
    [[nodiscard]] const char* NameOf(std::size_t field) const { return fields_[field].name; }
    [[nodiscard]] bool IsRepeated(std::size_t field) const { return fields_[field].repeated; }

    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// The first field of this name, or kNone.
    [[nodiscard]] std::size_t Find(const char* name) const;

private:
    struct Field
    {
        const char* name;
        bool repeated;
    };
    struct Slot
    {
        std::uint32_t hash = 0;
        std::uint32_t field = 0;  ///< 1 is the first one, 0 an empty slot
    };

    static std::uint32_t HashOf(const char* name);

    std::vector<Field> fields_;
    std::vector<Slot> slots_;
};

/// Where the fields of one record stand among an element's children: for each field the element
/// that the forward cursor would find for it. An element out of order costs what it costs the
/// cursor, the fields it skips over, but no further pass for each missing name.
class FieldMatches
{
public:
    FieldMatches(const FieldIndex& index, xmlNode* firstChild);
    ~FieldMatches() = default;
    FieldMatches(const FieldMatches&) = delete;
    FieldMatches& operator=(const FieldMatches&) = delete;

    /// The element of a field, of a repeated one its first; null when it is not read.
    [[nodiscard]] xmlNode* operator[](std::size_t field) const { return matches_[field]; }

private:
    static constexpr std::size_t kInline = 128;

    bool MatchInOrder(xmlNode* firstChild);
    void MatchByCursor(xmlNode* firstChild);

    const FieldIndex& index_;
    std::array<xmlNode*, kInline> inline_;
    std::vector<xmlNode*> more_;  ///< for records of very many fields
    xmlNode** matches_;
};

}  // namespace CapabilitySet::xml
