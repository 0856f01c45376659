// Search in queue statistics: lengths and waiting times.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonConfig/SearchPage.h"

namespace CapabilitySet
{

/// What queue lengths to search for. Put time, region and other conditions in `root`.
struct CAPABILITYSET_API PersonQueueCountingDescription
    : JsonRecord<PersonQueueCountingDescription>,
      SearchPage
{
    static constexpr const char* kKey = "PersonQueueCountingDescription";

    PersonQueueCountingDescription() = default;
    explicit PersonQueueCountingDescription(const std::string& text) { Parse(text); }
};

/// One page of queue lengths. The matches are in `root`.
struct CAPABILITYSET_API PersonQueueCountingResult : JsonRecord<PersonQueueCountingResult>,
                                                     SearchResultPage
{
    static constexpr const char* kKey = "PersonQueueCountingResult";

    PersonQueueCountingResult() = default;
    explicit PersonQueueCountingResult(const std::string& text) { Parse(text); }
};

/// What waiting times to search for. Put time, region and other conditions in `root`.
struct CAPABILITYSET_API PersonQueueTimeDescription : JsonRecord<PersonQueueTimeDescription>,
                                                      SearchPage
{
    static constexpr const char* kKey = "PersonQueueTimeDescription";

    PersonQueueTimeDescription() = default;
    explicit PersonQueueTimeDescription(const std::string& text) { Parse(text); }
};

/// One page of waiting times. The matches are in `root`.
struct CAPABILITYSET_API PersonQueueTimeResult : JsonRecord<PersonQueueTimeResult>, SearchResultPage
{
    static constexpr const char* kKey = "PersonQueueTimeResult";

    PersonQueueTimeResult() = default;
    explicit PersonQueueTimeResult(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
