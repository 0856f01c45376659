// A request line as the library writes it, encoded for HTTP.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace PelNet
{

/// Method and target of one request.
struct RequestLine
{
    std::string method;  ///< "GET", "PUT", "POST" or "DELETE"
    std::string target;  ///< path and query, percent-encoded where HTTP requires it

    bool operator==(const RequestLine&) const = default;
};

/// Reads "METHOD /path?query", with or without a line end, up to the first NUL. A line that begins
/// with '/' is a GET. Bytes that are illegal in a target are percent-encoded; a '%' stays if
/// two hexadecimal digits follow. Nothing if the target does not begin with '/', is longer than
/// limits::kTarget, or holds a carriage return or line feed: no header can be smuggled in.
[[nodiscard]] std::optional<RequestLine> ParseRequestLine(std::string_view line);

/// The target with its path decoded. The query stays as it is.
[[nodiscard]] std::string DecodePath(std::string_view target);

}  // namespace PelNet
