// A behaviour's table of requests: method and path of each, and who answers it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include <json/value.h>

#include "Device/Behaviour.h"

namespace Device
{

/// A request that found its route.
struct Call
{
    const ParsedRequest& request;
    std::vector<std::string> selectors;  ///< what stood at the pattern's stars
    Json::Value body;                    ///< of a request with a JSON body; else null

    /// A selector as a number, which may stand in angle brackets; nothing when it is none.
    [[nodiscard]] std::optional<int> Number(size_t index) const;
};

/// Text without the angle brackets that some clients put around the values of a request line.
std::string_view WithoutBrackets(std::string_view text);

/// Whether the path fits the pattern. Segments of a pattern are literal; a star at a segment's end
/// takes what is left of it, at least one character.
bool MatchPattern(std::string_view pattern, const std::vector<std::string>& path,
                  std::vector<std::string>& selectors);

/// One request that a behaviour knows.
template <class Owner>
struct Route
{
    std::string_view method;
    std::string_view pattern;  ///< "TARN/SecurityCP/control/arm/*"
    Response (Owner::*answer)(const Call& call);
};

/// Answers by the first route that fits: with 405 when only the method is another, with 400 when
/// the body is neither XML nor JSON, with nothing when no path fits.
template <class Owner>
std::optional<Response> AnswerByRoute(Owner& owner, std::span<const Route<Owner>> routes,
                                      const ParsedRequest& request);

Json::Value BodyOf(const ParsedRequest& request);

template <class Owner>
std::optional<Response> AnswerByRoute(Owner& owner, std::span<const Route<Owner>> routes,
                                      const ParsedRequest& request)
{
    bool otherMethod = false;
    for (const Route<Owner>& route : routes) {
        std::vector<std::string> selectors;
        if (!MatchPattern(route.pattern, request.path, selectors)) {
            continue;
        }
        if (route.method != request.method) {
            otherMethod = true;
            continue;
        }
        if (std::optional<Response> refusal = RefuseMalformed(request)) {
            return refusal;
        }
        return (owner.*route.answer)({request, std::move(selectors), BodyOf(request)});
    }
    return otherMethod ? std::optional(MakeStatus(Outcome::kMethodNotAllowed, request.target))
                       : std::nullopt;
}

}  // namespace Device
