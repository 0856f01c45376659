// Capabilities for faces and people: comparing pictures, searching by features.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"
#include "CapabilitySet/JsonTARN/JsonLimits.h"

namespace CapabilitySet
{

/// Comparing the faces in pictures.
struct CAPABILITYSET_API ImagesComparisionCapbility : JsonRecord<ImagesComparisionCapbility>
{
    static constexpr const char* kKey = "imagesComparision";

    JsonTextLimits dataType;  ///< how pictures are passed, such as "URL" or "binary"

    ImagesComparisionCapbility() = default;
    explicit ImagesComparisionCapbility(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("dataType", r.dataType);
    }
};

/// Search for people by their features and how often they appear.
struct CAPABILITYSET_API HFPDCapbility : JsonRecord<HFPDCapbility>
{
    static constexpr const char* kKey = "HFPDCap";

    JsonLimits occurrences;              ///< how often a person must have appeared
    bool isSupportDataPackage = false;   ///< results can be downloaded as a package
    bool eventRecordDataSearch = false;  ///< recorded events can be searched
    bool isSupportSearchTime = false;    ///< a search can be limited to a time span

    HFPDCapbility() = default;
    explicit HFPDCapbility(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("occurrences", r.occurrences);
        field("isSupportDataPackage", r.isSupportDataPackage);
        field("eventRecordDataSearch", r.eventRecordDataSearch);
        field("isSupportSearchTime", r.isSupportSearchTime);
    }
};

}  // namespace CapabilitySet
