// Traffic analysis at intersections: settings and search.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// Settings of the analysis.
struct CAPABILITYSET_API IntersectionAnalysisConfig : JsonTree<IntersectionAnalysisConfig>
{
    IntersectionAnalysisConfig() = default;
    explicit IntersectionAnalysisConfig(const std::string& text) { Parse(text); }
};

/// What results to search for. Put time, report type, lanes and other conditions in `root`.
struct CAPABILITYSET_API IntersectionAnalysisCondition : JsonRecord<IntersectionAnalysisCondition>,
                                                         SearchPage
{
    static constexpr const char* kKey = "IntersectionAnalysisCondition";

    IntersectionAnalysisCondition() = default;
    explicit IntersectionAnalysisCondition(const std::string& text) { Parse(text); }
};

/// One page of results. The matches are in `root`.
struct CAPABILITYSET_API IntersectionAnalysisResult : JsonRecord<IntersectionAnalysisResult>,
                                                      SearchResultPage
{
    static constexpr const char* kKey = "IntersectionAnalysisResult";

    IntersectionAnalysisResult() = default;
    explicit IntersectionAnalysisResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
