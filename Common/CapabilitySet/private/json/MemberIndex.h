// Finds all fields of a record in one pass over the members of a JSON object.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <string_view>
#include <vector>

#include <json/value.h>

namespace CapabilitySet::json
{

/// The field names of a record and their places in reading order.
class MemberIndex
{
public:
    void Add(std::string_view name) { fields_.push_back({name, fields_.size()}); }

    /// Sorts the names as JsonCpp sorts members. Call once, after the last Add.
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

/// The members of one object that match a record's fields. Looking up each field would cost more
/// where most are missing, as in the entries of long lists.
class MemberMatches
{
public:
    /// Throws what JsonCpp throws for a value that cannot have members.
    MemberMatches(const MemberIndex& index, const Json::Value& object);
    MemberMatches(const MemberMatches&) = delete;
    MemberMatches& operator=(const MemberMatches&) = delete;

    /// The member for the field at this place, null if there is none.
    [[nodiscard]] const Json::Value& operator[](std::size_t place) const
    {
        return matches_[place] == nullptr ? Json::Value::nullSingleton() : *matches_[place];
    }

private:
    static constexpr std::size_t kInline = 64;

    std::array<const Json::Value*, kInline> inline_;
    std::vector<const Json::Value*>
        more_;  ///< used by records with more fields than `inline_` holds
    const Json::Value** matches_;
};

}  // namespace CapabilitySet::json
