// What a channel can do in its current mode.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/DynChannelAbility.h"

#include "CapabilitySet/private/KeepFirstCache.h"
#include "CapabilitySet/private/query/AbilityQuery.h"
#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet
{

namespace
{

using PtzCache = KeepFirstCache<int, bool>;

PtzCache& Support3DPTZOfChannels()
{
    static PtzCache cache;
    return cache;
}

}  // namespace

void DynChannelAbility::Parse(const std::string& text)
{
    xml::WithRoot(text, kRoot, CAPABILITYSET_HERE, [this](xmlNode* element) { Parse(element); });
}

void DynChannelAbility::Parse(_xmlNode* element)
{
    xml::EndAtException([&] {
        ParseElement(element);
        xmlNode* cursor = element == nullptr ? nullptr : element->children;
        if (xml::NextElementNamed(cursor, "Support3DPTZ")) {
            Support3DPTZ = xml::GetNodeBool(cursor);
        }
    });
}

bool DynChannelAbility::GetDynChannelAbility(DynChannelAbility& out, unsigned int& err,
                                             const int userID, const int channel)
{
    return query::AskDeviceAbility(out, err, userID, CAPABILITYSET_HERE, 11,
                                   [&] { return query::ChannelXml(kRoot, channel); });
}

bool DynChannelAbility::SaveIsSupper3DPTZAbilityWithChannel(bool support, const std::string& key1,
                                                            const std::string& key2,
                                                            const int& channel)
{
    return Support3DPTZOfChannels().Save(support, key1, key2, channel);
}

bool DynChannelAbility::GetIsSupper3DPTZAbilityWithChannel(bool& support, const std::string& key1,
                                                           const std::string& key2,
                                                           const int& channel)
{
    return Support3DPTZOfChannels().Get(support, key1, key2, channel);
}

}  // namespace CapabilitySet
