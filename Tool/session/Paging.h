// Searches that are answered page by page, fetched until all is there.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Tool/command/DeviceCommand.h"

namespace Tool
{

/// How much of a search is wanted.
struct PageOptions
{
    int pageSize = 50;
    int limit = 0;  ///< most results, 0: all
};

/// --max and --limit.
void AddPageOptions(CLI::App& command, PageOptions& options);

/// --limit alone, for what comes in one page.
void AddLimitOption(CLI::App& command, PageOptions& options);

/// The time that a search looks at.
struct TimeOptions
{
    std::string from;
    std::string to;
};

/// --from and --to. Each is a day, or a day and a time; nothing else gets by.
void AddTimeOptions(CLI::App& command, TimeOptions& options);

/// The beginning of --from and the end of --to as devices write them, all times when one is not
/// given. `zone` is appended to times without one.
std::string StartTime(const TimeOptions& options, const std::string& zone);
std::string EndTime(const TimeOptions& options, const std::string& zone);

/// One page as a device answered it.
struct Page
{
    std::vector<CapabilitySet::RecordNode> items;
    bool hasMore = false;
    int total = 0;  ///< results of all pages, 0: the device does not tell
};

/// A page of a document that tells it in the usual words: "matchList" or another list of matches,
/// "responseStatusStrg" ("MORE"), "totalMatches".
Page ReadPage(const CapabilitySet::RecordNode& answer);

/// A name for a search that no other has.
std::string NewSearchID();

/// Which page is asked for.
struct PageRequest
{
    std::string searchID;  ///< the same for all pages of a search
    int position = 0;
    int count = 0;
};

/// Fetches page after page, and reports the results in a list of the record that is named. A device
/// that sends the same page again and again is left alone.
Report FetchPages(Talk& talk, const PageOptions& options, const std::string& name,
                  const std::function<Page(const PageRequest&)>& fetch);

/// The same with nested members moved up, so that they stand in one row of a table.
CapabilitySet::RecordNode Flattened(const CapabilitySet::RecordNode& item);

}  // namespace Tool
