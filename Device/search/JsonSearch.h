// Searches a profile's JSON lists and answers with a page or a package of the matches.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "Device/manifest/SearchRules.h"
#include "Device/message/ParsedRequest.h"

namespace Device
{

/// Answers a search. The request's body is the search description, or an object that contains it
/// under any name. One that is invalid or longer than kMostSearchText is refused.
Response AnswerSearch(const SearchRules& rules, const std::string& document,
                      const ParsedRequest& request);

/// The size of a package of the matches: what the "searchID" asks for ("pkg-50M"), or
/// `bytesPerMatch` for each match. Returns nothing if the description is invalid.
std::optional<std::uint64_t> PackageSizeOf(const SearchRules& rules, const std::string& document,
                                           const ParsedRequest& request,
                                           std::uint64_t bytesPerMatch);

}  // namespace Device
