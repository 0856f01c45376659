// Capabilities of analysis and search: intersections, city management, behaviour, false alarms.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonElements.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"

namespace CapabilitySet
{

/// What a tagged spot of an intersection can have.
struct CAPABILITYSET_API IntersectionTagCap : JsonPart<IntersectionTagCap>
{
    bool isSupportID = false;           ///< a number
    bool isSupportIDPoint = false;      ///< a position in the picture
    bool isSupportIDDirection = false;  ///< a direction

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSupportID", r.isSupportID, as::textFlag);
        field("isSupportIDPoint", r.isSupportIDPoint, as::textFlag);
        field("isSupportIDDirection", r.isSupportIDDirection, as::textFlag);
    }
};

/// Traffic analysis at an intersection.
struct CAPABILITYSET_API IntersectionAnalysisCap : JsonRecord<IntersectionAnalysisCap>
{
    static constexpr const char* kKey = "IntersectionAnalysisCap";

    IntersectionTagCap TagID;         ///< tagged spots
    JsonTextLimits searchReportType;  ///< kinds of report, such as "day" or "week"

    IntersectionAnalysisCap() = default;
    explicit IntersectionAnalysisCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("TagID", r.TagID);
        field("searchReportType", r.searchReportType);
    }
};

/// Search for city management events.
struct CAPABILITYSET_API CityManagementCapability : JsonRecord<CityManagementCapability>
{
    static constexpr const char* kKey = "SearchDescription";

    JsonLimits maxResultNumber;   ///< results of a whole search
    JsonLimits maxResults;        ///< results of one page
    JsonTextLimits subEventType;  ///< kinds of event
    int channelID = 0;            ///< channel number

    CityManagementCapability() = default;
    explicit CityManagementCapability(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("maxResultNumber", r.maxResultNumber);
        field("maxResults", r.maxResults);
        field("subEventType", r.subEventType);
        field("channelID", r.channelID);
    }
};

/// Search in the results of behaviour analysis.
struct CAPABILITYSET_API DeeplyThinkBehaviorCap : JsonRecord<DeeplyThinkBehaviorCap>
{
    static constexpr const char* kKey = "SearchCap";

    JsonTimeLimits startTime;  ///< limits of the start time
    JsonTimeLimits endTime;    ///< limits of the end time
    Json::Value CountByTask;   ///< counting by task, in the device's form
    Json::Value CountByTime;   ///< counting by time, in the device's form

    DeeplyThinkBehaviorCap() = default;
    explicit DeeplyThinkBehaviorCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("startTime", r.startTime);
        field("endTime", r.endTime);
        field("CountByTask", r.CountByTask);
        field("CountByTime", r.CountByTime);
    }
};

/// Confirming or rejecting alarms that may be false.
struct CAPABILITYSET_API MisinfoConfirmCap : JsonRecord<MisinfoConfirmCap>
{
    static constexpr const char* kKey = "misinfoConfirmCap";

    OptJsonElement eventType;  ///< kinds of event
    OptJsonElement state;      ///< judgements, such as "right" or "wrong"

    MisinfoConfirmCap() = default;
    explicit MisinfoConfirmCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("eventType", r.eventType);
        field("state", r.state);
    }
};

}  // namespace CapabilitySet
