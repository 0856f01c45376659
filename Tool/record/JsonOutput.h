// Records and failures as JSON for programs; docs/capset.md describes the form.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "CapabilitySet/RecordTree.h"

namespace Tool
{

/// A member's value: flags are booleans, numbers numbers, lists arrays, options and ranges objects,
/// and what is not announced is null.
Json::Value ToJson(const CapabilitySet::RecordNode& node);

/// What a text of JSON may hold beside ASCII.
enum class JsonText
{
    Ascii,
    Utf8,
};

/// The document as text, indented by two blanks and ended by a line feed.
std::string Dump(const Json::Value& value, JsonText form = JsonText::Ascii);

/// Reads a JSON text; false when it is none.
bool ReadJson(const std::string& text, Json::Value& value);

}  // namespace Tool
