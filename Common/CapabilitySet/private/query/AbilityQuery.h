// The three kinds of XML query: device ability, standard ability, transparent request.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>

#include "CapabilitySet/private/query/QueryFrame.h"
#include "CapabilitySet/private/query/RequestLine.h"
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet::query
{

/// Asks for a device ability. `makeXml` returns the request XML.
template <class Record, class MakeXml>
bool AskDeviceAbility(Record& out, unsigned int& err, int userID, const log::Place& place,
                      unsigned int ability, MakeXml&& makeXml,
                      const Policy& policy = kDeviceAbility)
{
    return Query(out, err, {place, policy}, [&] {
        return std::optional<DeviceAbilityRequest>(std::in_place, userID, ability, makeXml());
    });
}

/// Asks for a standard ability of a channel.
template <class Record>
bool AskStandardAbility(Record& out, unsigned int& err, int userID, const log::Place& place,
                        unsigned int ability, unsigned int channel,
                        const Policy& policy = kStandardAbility)
{
    return Query(out, err, {place, policy}, [&] {
        return std::optional<StandardAbilityRequest>(std::in_place, userID, ability, channel);
    });
}

/// Sends a request line without a body.
template <class Record>
bool AskTransparent(Record& out, unsigned int& err, int userID, const log::Place& place,
                    LineParts parts, const Policy& policy = kTransparent)
{
    return Query(out, err, {place, policy}, [&]() -> std::optional<TransparentRequest> {
        std::string line;
        if (!MakeLine(userID, parts, line)) {
            return std::nullopt;
        }
        return std::optional<TransparentRequest>(std::in_place, userID, std::move(line));
    });
}

}  // namespace CapabilitySet::query
