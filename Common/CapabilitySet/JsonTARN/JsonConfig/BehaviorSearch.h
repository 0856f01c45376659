// Searching analysed behaviour, and telling the device which of its alarms were false.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// Which analysed behaviour to search; tasks, kinds and the like stand in `root`.
struct CAPABILITYSET_API DeeplyThinkBehaviorDescription
    : JsonRecord<DeeplyThinkBehaviorDescription>,
      SearchPage
{
    static constexpr const char* kKey = "SearchDescription";

    std::string startTime;  ///< ISO 8601, within the limits of DeeplyThinkBehaviorCap
    std::string endTime;    ///< likewise, not before `startTime`

    DeeplyThinkBehaviorDescription() = default;
    explicit DeeplyThinkBehaviorDescription(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        SearchPage::Fields(r, field);
        field("startTime", r.startTime);
        field("endTime", r.endTime);
    }
};

/// One page of analysed behaviour. The matches stand in `root`.
struct CAPABILITYSET_API DeeplyThinkBehaviorSearch : JsonRecord<DeeplyThinkBehaviorSearch>,
                                                     SearchResultPage
{
    static constexpr const char* kKey = "SearchResult";

    DeeplyThinkBehaviorSearch() = default;
    explicit DeeplyThinkBehaviorSearch(const std::string& text) { Parse(text); }
};

/// Whether alarms were right; which ones stands in `root`.
struct CAPABILITYSET_API MisinfoConfirm : JsonRecord<MisinfoConfirm>
{
    static constexpr const char* kKey = "misinfoConfirm";

    std::string eventType;  ///< one of MisinfoConfirmCap's
    std::string state;      ///< one of MisinfoConfirmCap's

    MisinfoConfirm() = default;
    explicit MisinfoConfirm(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("eventType", r.eventType);
        field("state", r.state);
    }
};

}  // namespace CapabilitySet
