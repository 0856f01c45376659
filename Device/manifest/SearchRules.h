// How a profile's JSON lists are searched, and the series by which a profile writes long lists.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include <json/value.h>

namespace Device
{

/// How to search a JSON document that contains a list.
struct SearchRules
{
    std::string list;  ///< member of the root object that holds the list
    std::string time;  ///< member of an item that holds its time; empty: items have no time
    /// Pairs of a description's member and the item's member that must equal it.
    std::vector<std::pair<std::string, std::string>> filters;
    std::uint64_t packageBytes = 0;  ///< if set, answer with a package of this size per match
};

/// Reads rules from a manifest. Throws std::invalid_argument with a message.
SearchRules ReadSearchRules(const Json::Value& rules);

/// Parses a document and expands the series in its list: {"repeat": n, "each": {...}} stands for n
/// items, in which "{n}" is the item's number, {"cycle": [...]} takes its values in turn, and
/// {"from": time, "step": seconds} counts up. Throws std::invalid_argument with a message if there
/// is no such list or it becomes too long.
Json::Value ReadSearched(const std::string& document, const SearchRules& rules);

/// The object that holds the list: the document itself or its only member.
Json::Value& SearchedRoot(Json::Value& document, const SearchRules& rules);

}  // namespace Device
