// What a device needs to know about a request's body: its form, its root, the channel it names.
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
        None,       ///< no body
        Xml,        ///< well-formed XML
        Json,       ///< a JSON object or array
        Malformed,  ///< neither
    };

    Form form = Form::None;
    bool looksLikeJson = false;      ///< what a malformed body was probably meant to be
    std::vector<std::string> roots;  ///< local name of the XML root, or members of the JSON object
    std::string channelName;         ///< element that names a channel; empty if there is none
    std::string channel;             ///< its text
};

/// Examines a body. XML is read as UTF-8, whatever it declares. A document type, "xml:id", nesting
/// beyond 256 levels, and more attributes or namespaces than Limits.h allows make XML malformed: no
/// client sends them, and they make libxml2 slow.
RequestDocument ReadRequestDocument(std::string_view body, bool jsonExpected);

}  // namespace Device
