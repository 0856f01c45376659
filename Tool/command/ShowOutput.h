// Findings as people see them: tables, explanations, the summary of many.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string>
#include <vector>

#include "Tool/session/Inquiry.h"
#include "Tool/terminal/Terminal.h"

namespace Tool
{

/// The record's table, and below it what the document held that the record did not take: with
/// `explain` each element and why, without it their number.
std::string RenderReading(const Reading& reading, const std::string& source, bool explain,
                          const Paint& paint);

/// "PTZAbility of sim:dome: error 23: ..." for stderr.
std::string FailureSentence(const Finding& finding, const std::string& device);

/// How many records were answered, which ones were not, and why.
std::string RenderSummary(std::span<const Finding> findings, const std::string& device,
                          const Paint& paint);

/// All records with their descriptions.
std::string RenderRecordList(const Paint& paint);

}  // namespace Tool
