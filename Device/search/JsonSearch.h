// Searches over a profile's own JSON lists: filters, pages and packages of what is found.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <json/value.h>

#include "Device/ParsedRequest.h"

namespace Device
{

/// How a JSON document that lists things is searched.
struct SearchRules
{
    std::string list;  ///< member of the document's root object that holds what can be found
    std::string time;  ///< member of a thing that tells when; empty: things have no time
    /// Members of a description, and the member of a thing that each must equal.
    std::vector<std::pair<std::string, std::string>> filters;
    std::uint64_t packageBytes = 0;  ///< not 0: the answer is a package with so many bytes a match
};

/// Reads rules as a manifest writes them. Throws std::invalid_argument with a sentence.
SearchRules ReadSearchRules(const Json::Value& rules);

/// Reads a document that is searched. In its list an entry {"repeat": n, "each": {...}} stands for
/// n things: "{n}" in a text becomes the number of the thing, {"cycle": [...]} one of the values in
/// turn, {"from": time, "step": seconds} the time so many steps later. Throws std::invalid_argument
/// with a sentence when the document has not the list.
Json::Value ReadSearched(const std::string& document, const SearchRules& rules);

/// The answer to a search of such a document whose description is the request's body: the
/// description itself or an object under whatever name.
Response AnswerSearch(const SearchRules& rules, const std::string& document,
                      const ParsedRequest& request);

/// How many bytes the package of what a search finds has: what its "searchID" asks for ("pkg-50M"),
/// otherwise so many as given for each match. Nothing when the description makes no sense.
std::optional<std::uint64_t> PackageSizeOf(const SearchRules& rules, const std::string& document,
                                           const ParsedRequest& request,
                                           std::uint64_t bytesPerMatch);

}  // namespace Device
