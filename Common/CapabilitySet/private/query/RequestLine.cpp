// The request lines of the device's protocol, put together from pieces.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/RequestLine.h"

#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet::query
{

bool MakeLine(int userID, LineParts parts, std::string& line)
{
    line.clear();
    for (const LinePart& part : parts) {
        if (const auto* literal = std::get_if<const char*>(&part)) {
            line += *literal;
        } else if (const auto* number = std::get_if<int>(&part)) {
            line += std::to_string(*number);
        } else if (const auto* text = std::get_if<const std::string*>(&part)) {
            line += **text;
        } else {
            const int channel =
                NET_ORB_SDKChannelToTARN(userID, std::get<SdkChannel>(part).number, 1);
            if (channel == -1) {
                return false;
            }
            line += std::to_string(channel);
        }
    }
    return true;
}

}  // namespace CapabilitySet::query
