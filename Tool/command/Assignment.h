// Settings as users write them, NAME=VALUE, put into the fields of a record.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <charconv>
#include <concepts>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <json/value.h>

#include "Tool/Failure.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

/// "WirelessSecurity.WPA.sharedKey=secret", split. An item of a list is named by its id:
/// "3.uplinkRate=10240".
struct Assignment
{
    std::string text;  ///< as it was given
    std::vector<std::string> path;
    std::string value;
};

/// Throws a usage failure if the text is not an assignment.
Assignment ReadAssignment(const std::string& text);

/// Throws the usage failure of a name that is not among the members.
[[noreturn]] void RefuseName(const Assignment& assignment, const std::string& name,
                             const std::vector<std::string>& members);
/// Throws the usage failure of a value that the member cannot hold. `wanted`: "yes or no".
[[noreturn]] void RefuseValue(const Assignment& assignment, const std::string& wanted);

inline void AssignValue(std::string& member, const Assignment& assignment)
{
    member = assignment.value;
}

inline void AssignValue(bool& member, const Assignment& assignment)
{
    const std::string& value = assignment.value;
    const bool isOn = value == "true" || value == "yes" || value == "on" || value == "1";
    if (!isOn && value != "false" && value != "no" && value != "off" && value != "0") {
        RefuseValue(assignment, "yes or no");
    }
    member = isOn;
}

template <class Number>
    requires std::integral<Number> || std::floating_point<Number>
void AssignValue(Number& member, const Assignment& assignment)
{
    const char* const end = assignment.value.data() + assignment.value.size();
    const auto result = std::from_chars(assignment.value.data(), end, member);
    if (result.ec != std::errc() || result.ptr != end) {
        RefuseValue(assignment, "a number that fits");
    }
}

/// Sets a member of a JSON object as text; "a.b=c" one of a nested object, which is made if need
/// be. Throws a usage failure if "a" is there and is not an object.
void AssignMember(Json::Value& object, const Assignment& assignment);

template <class Record>
void Assign(Record& record, const Assignment& assignment, std::size_t depth = 0);

template <class Member>
concept IsNumberedList = requires(Member& m) { (*m.front()).id; };

/// Sets a member of the item with that id.
template <class List>
void AssignToItem(List& list, const Assignment& assignment, std::size_t depth)
{
    for (auto& item : list) {
        if (std::to_string((*item).id) == assignment.path[depth]) {
            Assign(*item, assignment, depth + 1);
            return;
        }
    }
    std::vector<std::string> ends;
    if (!list.empty()) {
        ends.push_back(std::to_string((*list.front()).id) + " to " +
                       std::to_string((*list.back()).id));
    }
    RefuseName(assignment, assignment.path[depth], ends);
}

/// Sets the member that the path names from `depth` on, in upper or lower case.
template <class Record>
void Assign(Record& record, const Assignment& assignment, std::size_t depth)
{
    const std::string name = depth < assignment.path.size() ? assignment.path[depth] : "";
    bool isFound = false;
    std::vector<std::string> members;
    Record::Fields(record, [&](const char* field, auto& member, auto... /*how*/) {
        using Member = std::remove_reference_t<decltype(member)>;
        if constexpr (IsNumberedList<Member>) {
            // The list of a record is meant without being named.
            isFound = true;
            AssignToItem(member, assignment, depth);
            return;
        }
        members.emplace_back(field);
        if (isFound || !SameIgnoringCase(field, name)) {  // GCOV_EXCL_BR_LINE
            return;
        }
        isFound = true;
        if constexpr (requires { AssignValue(member, assignment); }) {
            if (depth + 1 < assignment.path.size()) {  // GCOV_EXCL_BR_LINE
                RefuseName(assignment, assignment.path[depth + 1], {});
            }
            AssignValue(member, assignment);
        } else if constexpr (requires { Member::Fields(member, [](auto&&...) {}); }) {
            Assign(member, assignment, depth + 1);
        } else {
            RefuseValue(assignment, "which of its values is meant");
        }
    });
    if (!isFound) {
        RefuseName(assignment, name, members);
    }
}

}  // namespace Tool
