// Writes a sound XML document again with something wrong in every place.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

namespace Device
{

/// What is done to each element, text and number of a document.
struct XmlSpoiling
{
    bool reverse = false;  ///< children in opposite order
    int copies = 1;        ///< each element below the root that many times
    std::string between;   ///< markup before every element and at the end of each list of children
    std::function<std::string(const std::string& text)> text;  ///< escaped leaf text to markup
    std::string number;  ///< in place of every text and attribute that is a decimal number
};

/// The document without declaration. Empty when the sample is not well-formed.
std::string SpoilXml(const std::string& sample, const XmlSpoiling& spoiling);

/// Whether the text is a decimal number.
bool IsDecimal(const std::string& text);

}  // namespace Device
