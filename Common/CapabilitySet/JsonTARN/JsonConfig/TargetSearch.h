// Search for files by target type, and for the video tasks of a data centre.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// What files to search for. Put target type, time, channels and other conditions in `root`.
struct CAPABILITYSET_API TargetSearchDescription : JsonRecord<TargetSearchDescription>, SearchPage
{
    static constexpr const char* kKey = "TargetSearchDescription";

    TargetSearchDescription() = default;
    explicit TargetSearchDescription(const std::string& text) { Parse(text); }
};

/// One page of files. The matches are in `root`.
struct CAPABILITYSET_API TargetSearchResult : JsonRecord<TargetSearchResult>, SearchResultPage
{
    static constexpr const char* kKey = "TargetSearchResult";

    TargetSearchResult() = default;
    explicit TargetSearchResult(const std::string& text) { Parse(text); }
};

/// What tasks of a data centre to search for. Put further conditions in `root`.
struct CAPABILITYSET_API DataCenterTaskCond : JsonRecord<DataCenterTaskCond>, SearchPage
{
    static constexpr const char* kKey = "DataCenterTaskCond";

    DataCenterTaskCond() = default;
    explicit DataCenterTaskCond(const std::string& text) { Parse(text); }
};

/// One page of tasks. The matches are in `root`.
struct CAPABILITYSET_API DataCenterTaskResult : JsonRecord<DataCenterTaskResult>, SearchResultPage
{
    static constexpr const char* kKey = "DataCenterTaskResult";

    DataCenterTaskResult() = default;
    explicit DataCenterTaskResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
