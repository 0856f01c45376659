// The one-line documents that select what a device ability query returns.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/RequestXml.h"

namespace CapabilitySet::query
{

RequestXml::RequestXml(std::string_view root, std::string_view version) : root_(root)
{
    text_.append("<").append(root);
    if (!version.empty()) {
        text_.append(" version=\"").append(version).append("\"");
    }
    text_.append(">");
}

RequestXml& RequestXml::Child(std::string_view name, std::string_view text)
{
    text_.append("<").append(name).append(">").append(text);
    text_.append("</").append(name).append(">");
    return *this;
}

RequestXml& RequestXml::Child(std::string_view name, long long number)
{
    return Child(name, std::to_string(number));
}

RequestXml& RequestXml::Empty(std::string_view name)
{
    if (!name.empty()) {
        text_.append("<").append(name).append("/>");
    }
    return *this;
}

std::string RequestXml::Text() const
{
    return text_ + "</" + root_ + ">";
}

std::string ChannelXml(std::string_view root, long long channel)
{
    RequestXml xml(root);
    if (channel >= 0) {
        xml.Child("channelNO", channel);
    }
    return xml.Text();
}

}  // namespace CapabilitySet::query
