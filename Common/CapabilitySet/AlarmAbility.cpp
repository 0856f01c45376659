// What a channel's wireless, infrared and call-for-help alarms can do.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AlarmAbility.h"

#include <optional>
#include <utility>

#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/query/AbilityQuery.h"
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
    using Request = std::optional<query::DeviceAbilityRequest>;
    const query::Operation operation{CAPABILITYSET_HERE, query::kDeviceAbility};
    return query::Query(out, err, operation, [&]() -> Request {
        int protocolChannel = 0;
        if (!query::ToProtocolChannel(operation, userID, static_cast<int>(channel), protocolChannel,
                                      err)) {
            return std::nullopt;
        }
        SetAlarmQueryHandle(userID);
        return Request(std::in_place, userID, 10U,
                       query::RequestXml(kRoot).Child("channelID", protocolChannel).Text());
    });
}

}  // namespace CapabilitySet
