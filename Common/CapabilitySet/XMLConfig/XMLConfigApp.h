// The search for recorded content.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/XMLParamInterface/SDKInterfaceManager.h"
#include "CapabilitySet/XmlRecord.h"

namespace CapabilitySet
{

/// The tracks to search.
struct CAPABILITYSET_API TrackIDList : XmlRecord<TrackIDList>
{
    static constexpr const char* kElement = "trackIDList";

    std::vector<std::string> trackID;  ///< such as "101", the main stream of channel 1

    TrackIDList() = default;
    explicit TrackIDList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("trackID", r.trackID, as::repeated);
    }
};

/// A span of time.
struct CAPABILITYSET_API TimeSpan : XmlRecord<TimeSpan>
{
    static constexpr const char* kElement = "timeSpan";

    std::string startTime;  ///< ISO 8601, such as "2020-01-01T00:00:00Z"
    std::string endTime;    ///< ISO 8601, likewise

    TimeSpan() = default;
    explicit TimeSpan(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("startTime", r.startTime);
        field("endTime", r.endTime);
    }
};

/// The time spans to search.
struct CAPABILITYSET_API SearchTimeSpanList : XmlRecord<SearchTimeSpanList>
{
    static constexpr const char* kElement = "timeSpanList";

    std::vector<std::shared_ptr<TimeSpan>> timeSpan;  ///< spans, in order

    SearchTimeSpanList() = default;
    explicit SearchTimeSpanList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("timeSpan", r.timeSpan, as::repeated);
    }
};

/// A kind of content, by its slot.
struct CAPABILITYSET_API ContentType : XmlRecord<ContentType>
{
    static constexpr const char* kElement = "contentType";

    int slotNo = 0;  ///< slot number, as the device defines it

    ContentType() = default;
    explicit ContentType(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("slotNo", r.slotNo);
    }
};

/// The kinds of content to search.
struct CAPABILITYSET_API ContentTypeList : XmlRecord<ContentTypeList>
{
    static constexpr const char* kElement = "contentTypeList";

    std::vector<std::shared_ptr<ContentType>> contentType;  ///< kinds, in order

    ContentTypeList() = default;
    explicit ContentTypeList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("contentType", r.contentType, as::repeated);
    }
};

/// A kind of metadata, by its slot.
struct CAPABILITYSET_API MetaData : XmlRecord<MetaData>
{
    static constexpr const char* kElement = "metadataDescriptor";

    int slotNo = 0;  ///< slot number, as the device defines it

    MetaData() = default;
    explicit MetaData(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("slotNo", r.slotNo);
    }
};

/// The kinds of metadata to search.
struct CAPABILITYSET_API MetaDataList : XmlRecord<MetaDataList>
{
    static constexpr const char* kElement = "metadataList";

    std::vector<std::shared_ptr<MetaData>> metadataDescriptor;  ///< kinds, in order

    MetaDataList() = default;
    explicit MetaDataList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("metadataDescriptor", r.metadataDescriptor, as::repeated);
    }
};

/// What to search for, and which page of the result.
struct CAPABILITYSET_API CMSearchDescription : XmlRecord<CMSearchDescription>
{
    static constexpr const char* kElement = "CMSearchDescription";
    static constexpr const char* kVersion = "1.0";

    std::string searchID;             ///< chosen by the client, the same for all pages of a search
    TrackIDList trackIDList;          ///< tracks to search
    SearchTimeSpanList timeSpanList;  ///< time spans to search
    ContentTypeList contentTypeList;  ///< kinds of content to search
    int maxResults = 0;               ///< page size
    int searchResultPosition = 0;     ///< index of the first result wanted, from 0
    MetaDataList metadataList;        ///< kinds of metadata to search

    CMSearchDescription() = default;
    explicit CMSearchDescription(const std::string& text) { Parse(text); }
    explicit CMSearchDescription(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("searchID", r.searchID);
        field("trackIDList", r.trackIDList);
        field("timeSpanList", r.timeSpanList);
        field("contentTypeList", r.contentTypeList);
        field("maxResults", r.maxResults);
        field("searchResultPosition", r.searchResultPosition);
        field("metadataList", r.metadataList);
    }
};

/// One page of a search result.
struct CAPABILITYSET_API CMSearchResult : AbilityRecord<CMSearchResult>
{
    static constexpr const char* kRoot = "CMSearchResult";

    using AbilityRecord::AbilityRecord;
};

/// XML configuration requests.
class CAPABILITYSET_API ConfigCapXML
{
public:
    /// The body of a content search; empty when memory ran out.
    static std::string MakeSearchDesXML(const CMSearchDescription& description);

    /// POST /TARN/ContentMgmt/search, with the description as body. Fills one page. See
    /// ParamInterface for results and errors.
    static ParseXmlHelper::InterfaceRet SearchContent(const CMSearchDescription& description,
                                                      CMSearchResult& out, const int userID);
};

}  // namespace CapabilitySet
