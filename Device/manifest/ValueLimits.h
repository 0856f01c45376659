// The values that a profile lets clients send, by name.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "Device/message/ParsedRequest.h"

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

/// One form that a value may have: an exact text, a truth value, or a number or text within limits.
/// In JSON the value must also have the form's type.
using AllowedValue = std::variant<std::string, bool, NumberRange, TextLength>;

/// The allowed values under one name.
struct ValueLimit
{
    std::string parent;  ///< name of the enclosing element or member; empty: any
    std::string name;
    std::vector<AllowedValue> allowed;
};

/// Reads limits from a manifest: "name" or "parent/name" to one form or an array of forms. Throws
/// std::invalid_argument with a message that names the faulty entry.
std::vector<ValueLimit> ReadValueLimits(const Json::Value& limits);

/// A refusal unless the request's body has a value for each limit and no value that is forbidden.
std::optional<Response> RefuseBadValues(const std::vector<ValueLimit>& limits,
                                        const ParsedRequest& request);

}  // namespace Device
