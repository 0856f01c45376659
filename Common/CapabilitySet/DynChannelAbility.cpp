// What a channel can do in its present mode of operation.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/DynChannelAbility.h"

#include "CapabilitySet/private/FirstSavedCache.h"
#include "CapabilitySet/private/QueryFrame.h"
#include "CapabilitySet/private/RequestXml.h"

namespace CapabilitySet
{

namespace
{

using PtzCache = FirstSavedCache<int, bool>;

PtzCache& Support3DPTZOfChannels()
{
    static PtzCache cache;
    return cache;
}

}  // namespace

void DynChannelAbility::Parse(const std::string& text)
{
    ParseDocument(text, kRoot);
    NoteMembers();
}

void DynChannelAbility::Parse(_xmlNode* element)
{
    ParseElement(element);
    NoteMembers();
}

void DynChannelAbility::NoteMembers()
{
    if (const AbilityElement& element = Find("Support3DPTZ"))
        Support3DPTZ = element.text == "true" || element.text == "1";
}

bool DynChannelAbility::GetDynChannelAbility(DynChannelAbility& out, unsigned int& err,
                                             const int userID, const int channel)
{
    return query::Fill(
        out, err,
        {.place = CAPABILITYSET_HERE,
         .name = "GetDynChannelAbility",
         .growth = query::kDeviceAbilityGrowth},
        [&] { return query::DeviceAbilityRequest(userID, 11, query::ChannelXml(kRoot, channel)); });
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
