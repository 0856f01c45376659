// Search in behaviour analysis, and confirming or rejecting its alarms.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// What analysed behaviour to search for. Put tasks, kinds and other conditions in `root`.
struct CAPABILITYSET_API DeeplyThinkBehaviorDescription
    : JsonRecord<DeeplyThinkBehaviorDescription>,
      SearchPage
{
    static constexpr const char* kKey = "SearchDescription";

    std::string startTime;  ///< ISO 8601, within DeeplyThinkBehaviorCap
    std::string endTime;    ///< ISO 8601, not before `startTime`

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

/// One page of analysed behaviour. The matches are in `root`.
struct CAPABILITYSET_API DeeplyThinkBehaviorSearch : JsonRecord<DeeplyThinkBehaviorSearch>,
                                                     SearchResultPage
{
    static constexpr const char* kKey = "SearchResult";

    DeeplyThinkBehaviorSearch() = default;
    explicit DeeplyThinkBehaviorSearch(const std::string& text) { Parse(text); }
};

/// The judgement of an alarm. Put the alarm's identifier in `root`.
struct CAPABILITYSET_API MisinfoConfirm : JsonRecord<MisinfoConfirm>
{
    static constexpr const char* kKey = "misinfoConfirm";

    std::string eventType;  ///< a kind of event from MisinfoConfirmCap
    std::string state;      ///< a judgement from MisinfoConfirmCap

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
