// A request taken apart: path segments, query parameters and body.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Device/message/Message.h"
#include "Device/message/RequestDocument.h"

namespace Device
{

/// One parameter of a query, percent-decoded.
struct Parameter
{
    std::string name;
    std::string value;

    bool operator==(const Parameter&) const = default;
};

/// The parameters of a target's query, in order.
std::vector<Parameter> ParseParameters(std::string_view target);

/// The segments of a target's path: "/a/b?c" gives "a" and "b". Empty segments are dropped.
std::vector<std::string> ParsePath(std::string_view target);

/// Whether the target's query contains "format=json".
bool WantsJson(std::string_view target);

/// A request ready to be matched. It refers to the request, which must outlive it.
struct ParsedRequest
{
    explicit ParsedRequest(const Request& request);

    std::string method;
    std::string target;
    std::vector<std::string> path;
    std::vector<Parameter> parameters;
    std::string_view body;  ///< up to the first NUL
    RequestDocument document;

    /// The parameter's value, or null.
    [[nodiscard]] const std::string* FindParameter(std::string_view name) const;
};

}  // namespace Device
