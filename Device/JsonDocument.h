// Reading JSON of any origin without a surprise: what is missing or of another kind is told apart.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <json/value.h>

namespace Device
{

/// Reads a document; nothing when the text is not JSON, goes on behind it, or nests beyond 256
/// levels. A key that stands twice counts as an error. `error` then holds the reader's sentence.
std::optional<Json::Value> ReadJsonDocument(std::string_view text, std::string* error = nullptr);

/// The member, or null when the value is no object or has no such member.
const Json::Value& JsonMember(const Json::Value& value, const char* key);

/// The value as a text: a text itself, or the digits of an integer; empty for anything else.
std::string JsonText(const Json::Value& value);

/// The value as a number: an integer, or a text that is one decimal number.
std::optional<int> JsonNumber(const Json::Value& value);

}  // namespace Device
