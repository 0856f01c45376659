// The search for recorded content.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"

#include "CapabilitySet/XMLParamInterface/private/RecordRequests.h"
#include "CapabilitySet/private/xml/AbilityRecordMembers.h"
#include "CapabilitySet/private/xml/XmlRecordMembers.h"

namespace CapabilitySet
{

CAPABILITYSET_XML_RECORD(TrackIDList);
CAPABILITYSET_XML_RECORD(TimeSpan);
CAPABILITYSET_XML_RECORD(SearchTimeSpanList);
CAPABILITYSET_XML_RECORD(ContentType);
CAPABILITYSET_XML_RECORD(ContentTypeList);
CAPABILITYSET_XML_RECORD(MetaData);
CAPABILITYSET_XML_RECORD(MetaDataList);
CAPABILITYSET_XML_RECORD(CMSearchDescription);
CAPABILITYSET_ABILITY_RECORD(CMSearchResult);

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
