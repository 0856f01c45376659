// The one-line documents that select what a device ability query returns.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace CapabilitySet::query
{

/// Builds a root element, with or without a version, and its children in order.
class RequestXml
{
public:
    /// An empty version omits the attribute.
    explicit RequestXml(std::string_view root, std::string_view version = "2.0");

    RequestXml& Child(std::string_view name, std::string_view text);
    RequestXml& Child(std::string_view name, long long number);
    /// Adds an empty element, unless the name is empty.
    RequestXml& Empty(std::string_view name);

    [[nodiscard]] std::string Text() const;

private:
    std::string root_;
    std::string text_;
};

/// Means "no channel" in documents that always name one.
inline constexpr std::string_view kNoChannel = "0xff";

/// A root with the child "channelNO", left out if the channel is negative.
std::string ChannelXml(std::string_view root, long long channel);

}  // namespace CapabilitySet::query
