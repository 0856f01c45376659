// JSON search descriptions, and the page of matches that answers them.
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

/// A period of time, both ends included. A missing end is unbounded.
struct TimeSpan
{
    std::optional<std::int64_t> start;
    std::optional<std::int64_t> end;

    [[nodiscard]] bool Holds(std::int64_t time) const
    {
        return (!start || time >= *start) && (!end || time <= *end);
    }
};

/// A search description without its filters.
struct SearchDemand
{
    std::string searchId;
    int position = 0;                                   ///< index of the first match on the page
    size_t limit = std::numeric_limits<size_t>::max();  ///< matches on the page
    size_t most = std::numeric_limits<size_t>::max();   ///< matches on all pages together
    std::vector<TimeSpan> spans;

    /// Whether the time lies in one of the spans, or there are none.
    [[nodiscard]] bool Wants(std::int64_t time) const;
};

/// Reads a search description; a page size of 0 means no limit. Returns nothing if a number, time
/// or list is invalid.
std::optional<SearchDemand> ReadSearchDemand(const Json::Value& description);

/// The requested page of matches under `list`, with "searchID", "responseStatus",
/// "responseStatusStrg", "numOfMatches" and "totalMatches". Each match is wrapped in an object
/// under `item` unless that is empty.
Json::Value MakeSearchPage(const SearchDemand& demand, const std::vector<Json::Value>& matches,
                           const std::string& list, const std::string& item);

}  // namespace Device
