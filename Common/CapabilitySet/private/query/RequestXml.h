// The one-line documents that select what a device ability is asked for.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace CapabilitySet::query
{

/// A root element, with or without its version, and its children in the order they are added.
class RequestXml
{
public:
    /// An empty version writes no attribute.
    explicit RequestXml(std::string_view root, std::string_view version = "2.0");

    RequestXml& Child(std::string_view name, std::string_view text);
    RequestXml& Child(std::string_view name, long long number);
    /// An empty element; an empty name adds nothing.
    RequestXml& Empty(std::string_view name);

    [[nodiscard]] std::string Text() const;

private:
    std::string root_;
    std::string text_;
};

/// What stands for "no channel" in the documents that always name one.
inline constexpr std::string_view kNoChannel = "0xff";

/// A root with the child "channelNO"; a negative channel asks for the device as a whole.
std::string ChannelXml(std::string_view root, long long channel);

}  // namespace CapabilitySet::query
