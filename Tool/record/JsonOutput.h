// Records as JSON for programs; docs/capset.md describes the form.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "CapabilitySet/RecordTree.h"

namespace Tool
{

/// Flags become booleans, numbers numbers, lists arrays, options and ranges objects. What the
/// device did not announce is null.
Json::Value ToJson(const CapabilitySet::RecordNode& node);

/// The characters of a JSON text. Ascii escapes all others.
enum class JsonText
{
    Ascii,
    Utf8,
};

/// The document as text, indented by two blanks, with a line feed at the end.
std::string Dump(const Json::Value& value, JsonText form = JsonText::Ascii);

/// Reads a JSON text. False if it is not valid.
bool ReadJson(const std::string& text, Json::Value& value);

}  // namespace Tool
