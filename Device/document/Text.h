// Small pieces of text: numbers, blanks, percent-encoding.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

namespace Device
{

/// Reads a decimal number. False when the text holds anything else or the number does not fit.
bool ReadNumber(std::string_view text, int& number);

/// The text without leading and trailing white space.
std::string_view Trimmed(std::string_view text);

/// Decodes each "%41"; a percent sign that starts no such sequence stays.
std::string UndoPercentEncoding(std::string_view text);

/// Encodes as "%41" each byte for which `keep` is false.
std::string PercentEncoded(std::string_view text, bool (*keep)(char));

/// Replaces every occurrence, in one pass.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace Device
