// The time span of a search, as users write it and as devices take it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Tool
{

/// Each is a day, or a day and a time of day with or without a zone; empty: not given.
struct TimeOptions
{
    std::string from;
    std::string to;
};

/// What is wrong with a time as a user wrote it, or "".
std::string CheckTime(const std::string& text);

/// The span's ends as devices write them; all times if an end is not given. `zone` is appended to
/// times without one. Throws a usage failure if the span ends before it begins.
std::string StartTime(const TimeOptions& options, const std::string& zone);
std::string EndTime(const TimeOptions& options, const std::string& zone);

}  // namespace Tool
