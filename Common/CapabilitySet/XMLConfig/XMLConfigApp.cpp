// The search for recorded content.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"

#include "CapabilitySet/XMLParamInterface/private/RecordRequests.h"
#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

template struct XmlRecord<TrackIDList>;
template struct XmlRecord<TimeSpan>;
template struct XmlRecord<SearchTimeSpanList>;
template struct XmlRecord<ContentType>;
template struct XmlRecord<ContentTypeList>;
template struct XmlRecord<MetaData>;
template struct XmlRecord<MetaDataList>;
template struct XmlRecord<CMSearchDescription>;

std::string ConfigCapXML::MakeSearchDesXML(const CMSearchDescription& description)
{
    return description.createXml();
}

ParseXmlHelper::InterfaceRet ConfigCapXML::SearchContent(const CMSearchDescription& description,
                                                         CMSearchResult& out, const int userID)
{
    return ParseXmlHelper::SearchRecord(description, out, userID,
                                        "POST /TARN/ContentMgmt/search\r\n", CAPABILITYSET_HERE);
}

}  // namespace CapabilitySet
