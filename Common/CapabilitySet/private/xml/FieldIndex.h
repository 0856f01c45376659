// Finds all fields of a record in one pass over the children of an element.
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

/// The field names of a record and their places in reading order.
class FieldIndex
{
public:
    /// Adds the next field. A repeated one takes every following element of its name.
    void Add(const char* name, bool repeated);

    /// Builds the look-up table. Call once, after the last Add.
    void Finish();

    [[nodiscard]] std::size_t Size() const { return fields_.size(); }
    [[nodiscard]] const char* NameOf(std::size_t field) const { return fields_[field].name; }
    [[nodiscard]] bool IsRepeated(std::size_t field) const { return fields_[field].repeated; }

    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// The first field with this name, or kNone.
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
        std::uint32_t field = 0;  ///< field number + 1; 0 for an empty slot
    };

    static std::uint32_t HashOf(const char* name);

    std::vector<Field> fields_;
    std::vector<Slot> slots_;
};

/// The child element of each field, as the forward cursor would find it. Elements out of order cost
/// the fields that the cursor skips over; missing ones cost no further pass.
class FieldMatches
{
public:
    FieldMatches(const FieldIndex& index, xmlNode* firstChild);
    ~FieldMatches() = default;
    FieldMatches(const FieldMatches&) = delete;
    FieldMatches& operator=(const FieldMatches&) = delete;

    /// The element of a field, or the first one if it is repeated; null if it is not read.
    [[nodiscard]] xmlNode* operator[](std::size_t field) const { return matches_[field]; }

private:
    static constexpr std::size_t kInline = 128;

    bool MatchInOrder(xmlNode* firstChild);
    void MatchByCursor(xmlNode* firstChild);

    const FieldIndex& index_;
    std::array<xmlNode*, kInline> inline_;
    std::vector<xmlNode*> more_;  ///< used by records with more fields than `inline_` holds
    xmlNode** matches_;
};

}  // namespace CapabilitySet::xml
