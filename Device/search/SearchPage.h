// Searches: which records of a list a client wants, and which page of them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include <json/value.h>

namespace Device
{

/// A period of time; an open end includes everything.
struct TimeSpan
{
    std::optional<std::int64_t> start;
    std::optional<std::int64_t> end;

    [[nodiscard]] bool Holds(std::int64_t time) const
    {
        return (!start || time >= *start) && (!end || time <= *end);
    }
};

/// What a search description says beside its filters.
struct SearchDemand
{
    std::string searchId;
    int position = 0;                                   ///< index of the first match wanted
    size_t limit = std::numeric_limits<size_t>::max();  ///< size of the page
    size_t most = std::numeric_limits<size_t>::max();   ///< matches of all pages together
    std::vector<TimeSpan> spans;

    /// Whether a time lies in one of the spans; without spans every time does.
    [[nodiscard]] bool Wants(std::int64_t time) const;
};

/// Reads a search description; a page size of 0 is none. Nothing when a number is negative or no
/// number, a time is no time, or a list is no list.
std::optional<SearchDemand> ReadSearchDemand(const Json::Value& description);

/// The page of matches that the demand wants, each wrapped in an object under `item` unless that
/// is empty, with the counts that go with it: "searchID", "responseStatus", "responseStatusStrg",
/// "numOfMatches", "totalMatches", and the matches under `list`.
Json::Value MakeSearchPage(const SearchDemand& demand, const std::vector<Json::Value>& matches,
                           const std::string& list, const std::string& item);

}  // namespace Device
