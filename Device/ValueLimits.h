// What values a profile lets clients send: limits by name, checked against whole documents.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "Device/RequestDocument.h"

namespace Json
{
class Value;
}

namespace Device
{

struct NumberRange
{
    int min;
    int max;
};

struct TextLength
{
    size_t min;
    size_t max;
};

/// One form that a value may have: that very text, that truth value, a number or a text between
/// limits. JSON values must be of the form's own type.
using AllowedValue = std::variant<std::string, bool, NumberRange, TextLength>;

/// What each value of one name may be.
struct ValueLimit
{
    std::string parent;  ///< name of the element or member it stands in; empty: any
    std::string name;
    std::vector<AllowedValue> allowed;
};

/// Reads limits as a manifest writes them: "name" or "parent/name" to one form or an array of
/// forms. Throws std::invalid_argument with a sentence that names the faulty entry.
std::vector<ValueLimit> ReadValueLimits(const Json::Value& limits);

/// Whether a well-formed body holds a value for each limit, and none that its limit forbids.
bool KeepsLimits(const std::vector<ValueLimit>& limits, std::string_view body,
                 RequestDocument::Form form);

}  // namespace Device
