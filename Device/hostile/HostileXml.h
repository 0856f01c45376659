// Spoils a sound XML document everywhere at once.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

namespace Device
{

/// What to do to each element, text and number of a document.
struct XmlSpoiling
{
    bool reverse = false;  ///< reverse the order of children
    int copies = 1;        ///< how often each element below the root is repeated
    std::string between;   ///< markup before every element and after the last child
    std::function<std::string(const std::string& text)>
        text;            ///< turns escaped leaf text into markup
    std::string number;  ///< replaces every text and attribute that is a decimal number
};

/// The spoiled document without its declaration; empty if the sample is malformed.
std::string SpoilXml(const std::string& sample, const XmlSpoiling& spoiling);

/// Whether the text is a decimal number.
bool IsDecimal(const std::string& text);

}  // namespace Device
