// What a device needs to know of a request's body: its form, its root, the channel it asks about.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Device
{

/// A request's body as far as a device looks into it.
struct RequestDocument
{
    enum class Form
    {
        None,       ///< there is no body
        Xml,        ///< well-formed XML
        Json,       ///< a JSON document
        Malformed,  ///< neither
    };

    Form form = Form::None;
    bool looksLikeJson = false;      ///< which of the two a malformed body was meant to be
    std::vector<std::string> roots;  ///< the XML root's local name, or the JSON object's members
    std::string channelName;         ///< the element that names a channel; empty when none does
    std::string channel;             ///< its text
};

/// Looks into a body. Document types, more than 1,000 attributes on one element and nesting beyond
/// 256 levels make it malformed: no client sends them and each can hang or fill a device.
RequestDocument ReadRequestDocument(std::string_view body, bool jsonExpected);

}  // namespace Device
