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

/// The tracks to search, such as "101" for the main stream of channel 1.
struct CAPABILITYSET_API TrackIDList : XmlRecord<TrackIDList>
{
    static constexpr const char* kElement = "trackIDList";

    std::vector<std::string> trackID;

    TrackIDList() = default;
    explicit TrackIDList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("trackID", r.trackID, as::repeated);
    }
};

/// A span of time, each end as "2020-01-01T00:00:00Z".
struct CAPABILITYSET_API TimeSpan : XmlRecord<TimeSpan>
{
    static constexpr const char* kElement = "timeSpan";

    std::string startTime;
    std::string endTime;

    TimeSpan() = default;
    explicit TimeSpan(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("startTime", r.startTime);
        field("endTime", r.endTime);
    }
};

struct CAPABILITYSET_API SearchTimeSpanList : XmlRecord<SearchTimeSpanList>
{
    static constexpr const char* kElement = "timeSpanList";

    std::vector<std::shared_ptr<TimeSpan>> timeSpan;

    SearchTimeSpanList() = default;
    explicit SearchTimeSpanList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("timeSpan", r.timeSpan, as::repeated);
    }
};

/// One kind of content, by the slot it is stored in.
struct CAPABILITYSET_API ContentType : XmlRecord<ContentType>
{
    static constexpr const char* kElement = "contentType";

    int slotNo = 0;

    ContentType() = default;
    explicit ContentType(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("slotNo", r.slotNo);
    }
};

struct CAPABILITYSET_API ContentTypeList : XmlRecord<ContentTypeList>
{
    static constexpr const char* kElement = "contentTypeList";

    std::vector<std::shared_ptr<ContentType>> contentType;

    ContentTypeList() = default;
    explicit ContentTypeList(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("contentType", r.contentType, as::repeated);
    }
};

/// One kind of metadata, by the slot it is stored in.
struct CAPABILITYSET_API MetaData : XmlRecord<MetaData>
{
    static constexpr const char* kElement = "metadataDescriptor";

    int slotNo = 0;

    MetaData() = default;
    explicit MetaData(_xmlNode* element) { Parse(element); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("slotNo", r.slotNo);
    }
};

struct CAPABILITYSET_API MetaDataList : XmlRecord<MetaDataList>
{
    static constexpr const char* kElement = "metadataList";

    std::vector<std::shared_ptr<MetaData>> metadataDescriptor;

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

    std::string searchID;  ///< of the client's choice, the same for all pages of one search
    TrackIDList trackIDList;
    SearchTimeSpanList timeSpanList;
    ContentTypeList contentTypeList;
    int maxResults = 0;            ///< size of a page
    int searchResultPosition = 0;  ///< index of the first result wanted
    MetaDataList metadataList;

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

/// One page of a search's result, as the device tells it.
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

    /// Asks for one page of a search. `out` is reset first and stays at its defaults on failure; a
    /// device that answers with anything but a search result is error 23 of type 2.
    static ParseXmlHelper::InterfaceRet SearchContent(const CMSearchDescription& description,
                                                      CMSearchResult& out, const int userID);
};

}  // namespace CapabilitySet
