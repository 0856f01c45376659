// Which reactions each kind of event may start.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/EventTriggerCapAbility.h"

#include "CapabilitySet/private/query/AbilityQuery.h"
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
    static constexpr query::Policy kPolicy{
        .growth = {16384, 16384, 16384000},
        // Kept: support staff search logs for this call and traces for this operation, neither of
        // which is the actual one.
        .failedCall = "NET_ORB_STDXMLConfig",
        .name = "GetScurityAbility",
        .needsFlag = true};
    return query::AskStandardAbility(out, err, userID, CAPABILITYSET_HERE, 3501, channel, kPolicy);
}

}  // namespace CapabilitySet
