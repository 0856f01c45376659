// Taking the body of an answer within its limit.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Exchange.h"

#include <algorithm>
#include <utility>

namespace PelNet
{

TransportAnswer::Taken TransportAnswer::Take(const char* bytes, std::size_t count)
{
    const std::size_t most = IsSuccess() ? limit : limits::kRefusal;
    const std::size_t room = most - std::min(most, body.Size());
    const std::size_t part = IsSuccess() && count > room ? 0 : std::min(count, room);
    if (body.Append(bytes, part) && part == count) {
        return Taken::Whole;
    }
    return IsSuccess() ? Taken::TooLarge : Taken::AsRefusal;
}

TransportAnswer::Taken TransportAnswer::Take(std::string&& whole)
{
    if (!IsSuccess()) {
        return Take(whole.data(), whole.size());
    }
    return whole.size() <= limit && body.Adopt(std::move(whole)) ? Taken::Whole : Taken::TooLarge;
}

}  // namespace PelNet
