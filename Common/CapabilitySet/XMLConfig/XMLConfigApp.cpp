// The search for recorded content.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XMLConfig/XMLConfigApp.h"

#include "CapabilitySet/private/QueryFrame.h"
#include "CapabilitySet/private/XmlRecord.h"

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
    return description.MakeDocument("1.0");
}

ParseXmlHelper::InterfaceRet ConfigCapXML::SearchContent(const CMSearchDescription& description,
                                                         CMSearchResult& out, const int userID)
{
    ParseXmlHelper::InterfaceRet result{false, 2, static_cast<int>(query::kNotSupported)};
    unsigned int err = 0;
    query::Guarded(err, [&] {
        out = CMSearchResult();
        std::string answer;
        std::string status;
        auto sent = ParseXmlHelper::SDKInterfaceManager::instance().TransparentRequset(
            userID, "POST /TARN/ContentMgmt/search\r\n", MakeSearchDesXML(description), answer,
            status, 0, false);
        if (sent.success) {
            out.Parse(answer);
            if (!out.Capable())
                return false;
        }
        result = sent;
        return true;
    });
    return result;
}

}  // namespace CapabilitySet
