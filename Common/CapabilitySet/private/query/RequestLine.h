// The request lines of the device's protocol, put together from pieces.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <initializer_list>
#include <string>
#include <variant>

namespace CapabilitySet::query
{

/// The SDK's number of a channel; the request line gets the protocol's number instead.
struct SdkChannel
{
    int number;
};

/// A piece of a request line. Numbers are written in decimal, strings unchanged.
using LinePart = std::variant<const char*, int, const std::string*, SdkChannel>;
using LineParts = std::initializer_list<LinePart>;

/// Sets `line` to the joined pieces; false if the SDK cannot convert a channel.
bool MakeLine(int userID, LineParts parts, std::string& line);

}  // namespace CapabilitySet::query
