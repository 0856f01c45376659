// Which reactions each kind of event may start.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventTriggerCapAbility.h"

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/xml/ElementRecordMembers.h"

namespace CapabilitySet
{

template struct ElementRecord<EventTriggerCapType>;

void EventTriggerCap::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE);
}

void EventTriggerCap::Parse(_xmlNode* element)
{
    xml::ParseNode(*this, element);
}

void EventTARNAbility::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE);
}

void EventTARNAbility::Parse(_xmlNode* element)
{
    xml::ParseNode(*this, element);
}

void ChannelEventAbility::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE);
}

void ChannelEventAbility::Parse(_xmlNode* element)
{
    xml::ParseNode(*this, element);
}

bool EventTriggerCap::GetEventTriggerCapAbility(EventTriggerCap& out, unsigned int err, int userID,
                                                unsigned int channel)
{
    return query::Fill(out, err,
                       {.place = CAPABILITYSET_HERE,
                        // Kept: support staff search traces for this name, another operation's.
                        .name = "GetScurityAbility",
                        .growth = {16384, 16384, 16384000},
                        .failedCall = "NET_ORB_STDXMLConfig",
                        .needsFlag = true},
                       [&] { return query::StandardAbilityRequest(userID, 3501, channel); });
}

}  // namespace CapabilitySet
