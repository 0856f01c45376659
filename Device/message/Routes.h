// Tables of requests: each row has a method, a path and the function that answers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <json/value.h>

#include "Device/message/StatusDocument.h"

namespace Device
{

/// A request that matched a route.
struct Call
{
    const ParsedRequest& request;
    std::vector<std::string> selectors;  ///< what the pattern's stars matched
    Json::Value body;                    ///< parsed if it is JSON; otherwise null

    /// A selector as a number, with or without angle brackets.
    [[nodiscard]] std::optional<int> Number(size_t index) const;
};

/// The text without the angle brackets that some clients put around values in a request line.
std::string_view WithoutBrackets(std::string_view text);

/// Whether the path matches the pattern. Segments are literal; a star at the end of a segment
/// matches the rest of it, at least one character.
bool MatchPattern(std::string_view pattern, const std::vector<std::string>& path,
                  std::vector<std::string>& selectors);

/// One row: a request and the member function that answers it.
template <class Owner>
struct Route
{
    std::string_view method;
    std::string_view pattern;  ///< "TARN/SecurityCP/control/arm/*"
    Response (Owner::*answer)(const Call& call);
};

/// The body if it is JSON; otherwise null.
Json::Value BodyOf(const ParsedRequest& request);

/// Answers with the first matching route. Returns nothing if no path matches, 405 if only the
/// method differs, 400 if the body is neither XML nor JSON.
template <class Owner>
std::optional<Response> AnswerByRoute(Owner& owner, std::span<const Route<Owner>> routes,
                                      const ParsedRequest& request)
{
    std::set<std::string> allowed;
    for (const Route<Owner>& route : routes) {
        std::vector<std::string> selectors;
        if (!MatchPattern(route.pattern, request.path, selectors)) {
            continue;
        }
        if (route.method != request.method) {
            allowed.emplace(route.method);
            continue;
        }
        if (std::optional<Response> refusal = RefuseMalformed(request)) {
            return refusal;
        }
        return (owner.*route.answer)({request, std::move(selectors), BodyOf(request)});
    }
    return allowed.empty() ? std::nullopt
                           : std::optional(MakeMethodNotAllowed(request.target, allowed));
}

}  // namespace Device
