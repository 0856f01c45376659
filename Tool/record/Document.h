// Documents as devices send them: set for reading, and what a refusal says.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Tool
{

/// The document as a person reads it: XML indented and in UTF-8, JSON one member a line, anything
/// else as it is.
std::string Pretty(const std::string& document);

/// Whether it is a JSON object or array, or XML.
bool IsDocument(const std::string& text);

/// Whether a terminal cannot show it as text.
bool IsBinary(const std::string& document);

/// Writes a document to stdout: as it is to a file or pipe, its control characters made visible to
/// a terminal, where a binary one is refused with a failure.
void PrintDocument(const std::string& document);

/// The members of a status document that are there, by their names, in the order statusCode,
/// statusString, subStatusCode, errorCode, errorMsg. Empty when the text is no such document.
std::vector<std::pair<std::string, std::string>> ReadStatus(const std::string& document);

/// No document of a device is larger.
inline constexpr std::size_t kLargestInput = 64u << 20;

/// The bytes of a file, or of stdin for "-". Throws a failure that names the file if it cannot be
/// read or is larger than `largest` bytes.
std::string ReadInput(const std::string& file, std::size_t largest = kLargestInput);

}  // namespace Tool
