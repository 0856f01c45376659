// A request taken apart: path segments, query parameters and body.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Device/DeviceModel.h"
#include "Device/RequestDocument.h"

namespace Device
{

/// One parameter of a query, percent-encoding undone.
struct Parameter
{
    std::string name;
    std::string value;

    bool operator==(const Parameter&) const = default;
};

/// The parameters of a target's query, in their order.
std::vector<Parameter> ParseParameters(std::string_view target);

/// The segments of a target's path: "/a/b?c" gives "a" and "b". Empty segments are dropped.
std::vector<std::string> ParsePath(std::string_view target);

struct ParsedRequest
{
    explicit ParsedRequest(const Request& request);

    std::string method;
    std::string target;
    std::vector<std::string> path;
    std::vector<Parameter> parameters;
    std::string_view body;  ///< the request's up to the first NUL; refers to it
    RequestDocument document;

    /// The parameter's value, or null.
    [[nodiscard]] const std::string* FindParameter(std::string_view name) const;
};

/// The text with each "%41" replaced by the byte it stands for; anything else stays.
std::string UndoPercentEncoding(std::string_view text);

/// The text with "%41" for each byte that is not to be kept.
std::string PercentEncoded(std::string_view text, bool (*keep)(char));

/// Reads a text that is one decimal number of an `int` and nothing else.
bool ReadNumber(std::string_view text, int& number);

}  // namespace Device
