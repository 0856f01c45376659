// What a channel's wireless, infrared and call-for-help alarms can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AlarmAbility.h"

#include <memory>

#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestXml.h"
#include "CapabilitySet/private/xml/XmlFields.h"

namespace CapabilitySet
{

void ChannelAlarm::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void channelEntry::Parse(_xmlNode* firstChild)
{
    xml::ParseNode(*this, firstChild);
}

void AlarmAbility::Parse(const std::string& text)
{
    xml::ParseDocument(*this, text, kRoot, CAPABILITYSET_HERE);
}

void AlarmAbility::Parse(_xmlNode* element)
{
    xml::ParseNode(*this, element);
}

bool AlarmAbility::GetAlarmAbility(AlarmAbility& out, unsigned int& err, const int userID,
                                   const unsigned int channel)
{
    const query::Operation operation{.place = CAPABILITYSET_HERE,
                                     .name = "GetAlarmAbility",
                                     .growth = query::kDeviceAbilityGrowth};
    return query::Fill(out, err, operation, [&]() -> std::unique_ptr<query::Request> {
        int protocolChannel = 0;
        if (!query::ToProtocolChannel(operation, userID, static_cast<int>(channel), protocolChannel,
                                      err)) {
            return nullptr;
        }
        SetAlarmQueryHandle(userID);
        return std::make_unique<query::DeviceAbilityRequest>(
            userID, 10, query::RequestXml(kRoot).Child("channelID", protocolChannel).Text());
    });
}

}  // namespace CapabilitySet
