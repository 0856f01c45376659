// Searches that are answered page by page, fetched until all results are there.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Tool/session/Report.h"
#include "Tool/session/Talk.h"

namespace Tool
{

/// How much of a search is wanted.
struct PageOptions
{
    /// Ends searches on devices that always claim to have more results.
    static constexpr int kUsualLimit = 50'000;

    int pageSize = 50;
    int limit = kUsualLimit;  ///< most results, 0: no limit
};

/// One page as a device answered it.
struct Page
{
    std::vector<CapabilitySet::RecordNode> items;
    bool hasMore = false;
    int total = 0;  ///< results of all pages, 0: the device does not say
};

/// A page from a document with the usual members: "matchList" or another list of matches,
/// "responseStatusStrg" ("MORE") and "totalMatches".
Page ReadPage(const CapabilitySet::RecordNode& answer);

/// A random name for a search.
std::string NewSearchID();

/// Which page is asked for.
struct PageRequest
{
    std::string searchID;  ///< the same for all pages of a search
    int position = 0;
    int count = 0;
};

/// Fetches page after page and reports the results as "matches" and "total" of a record with that
/// name. It stops at the limit, at the total that the device announced, when a page is empty or
/// the same as the one before, and with a failure when the answers grow beyond all reason.
Report FetchPages(Talk& talk, const PageOptions& options, const std::string& name,
                  const std::function<Page(const PageRequest&)>& fetch);

}  // namespace Tool
