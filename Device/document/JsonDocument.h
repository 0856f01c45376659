// Reads JSON from anywhere; wrong or missing members give null or empty values, never exceptions.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <json/value.h>

namespace Device
{

/// Parses a document. Returns nothing and sets `error` when the text is not JSON, has something
/// behind the document, repeats a key, or nests deeper than kMostJsonDepth.
std::optional<Json::Value> ReadJsonDocument(std::string_view text, std::string* error = nullptr);

/// The member, or null when the value is not an object or has no such member.
const Json::Value& JsonMember(const Json::Value& value, const char* key);

/// A string, or an integer's digits; empty for anything else.
std::string JsonText(const Json::Value& value);

/// An integer, or a string that holds a decimal number.
std::optional<int> JsonNumber(const Json::Value& value);

/// The entries of an array, each unwrapped from the object under `item` unless that is empty.
std::vector<Json::Value> JsonEntries(const Json::Value& list, const char* item = "");

}  // namespace Device
