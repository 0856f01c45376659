// Finds all fields of a record in one walk over a JSON object's members.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include <json/value.h>

namespace CapabilitySet::json
{

/// The names of a record's fields, and where each stands in reading order.
class MemberIndex
{
public:
    void Add(std::string_view name) { fields_.push_back({name, fields_.size()}); }

    /// Sorts as JsonCpp sorts an object's members; called once, after the last Add.
    void Finish();

private:
    friend class MemberMatches;

    struct Field
    {
        std::string_view name;
        std::size_t place;
    };

    std::vector<Field> fields_;
};

/// The members of one object that a record's fields are read from. A look-up for each field would
/// cost more where most of them are missing, as they are in the entries of long lists.
class MemberMatches
{
public:
    /// Throws what JsonCpp throws for a value that can have no members.
    MemberMatches(const MemberIndex& index, const Json::Value& object);
    MemberMatches(const MemberMatches&) = delete;
    MemberMatches& operator=(const MemberMatches&) = delete;

    /// The member of the field at this place; null when there is none.
    [[nodiscard]] const Json::Value& operator[](std::size_t place) const
    {
        return matches_[place] == nullptr ? Json::Value::nullSingleton() : *matches_[place];
    }

private:
    static constexpr std::size_t kInline = 64;

    std::array<const Json::Value*, kInline> inline_;
    std::vector<const Json::Value*> more_;  ///< for records of very many fields
    const Json::Value** matches_;
};

}  // namespace CapabilitySet::json
