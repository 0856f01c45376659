// Taking a request apart.
// SPDX-License-Identifier: Apache-2.0
#include "Device/message/ParsedRequest.h"

#include <algorithm>

#include "Device/document/Text.h"

namespace Device
{
namespace
{

// Calls `take` for each piece between separators; empty pieces are dropped.
template <class Take>
void Split(std::string_view text, char separator, Take take)
{
    while (!text.empty()) {
        const size_t end = std::min(text.find(separator), text.size());
        if (end > 0) {
            take(text.substr(0, end));
        }
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

}  // namespace

std::vector<Parameter> ParseParameters(std::string_view target)
{
    std::vector<Parameter> parameters;
    const size_t query = target.find('?');
    if (query == std::string_view::npos) {
        return parameters;
    }
    Split(target.substr(query + 1), '&', [&](std::string_view part) {
        const size_t equals = std::min(part.find('='), part.size());
        parameters.push_back(
            {UndoPercentEncoding(part.substr(0, equals)),
             equals < part.size() ? UndoPercentEncoding(part.substr(equals + 1)) : std::string()});
    });
    return parameters;
}

std::vector<std::string> ParsePath(std::string_view target)
{
    std::vector<std::string> path;
    Split(target.substr(0, target.find('?')), '/',
          [&](std::string_view segment) { path.emplace_back(segment); });
    return path;
}

bool WantsJson(std::string_view target)
{
    const std::vector<Parameter> parameters = ParseParameters(target);
    return std::ranges::find(parameters, Parameter{"format", "json"}) != parameters.end();
}

ParsedRequest::ParsedRequest(const Request& request)
    : method(request.method),
      target(request.target),
      path(ParsePath(request.target)),
      parameters(ParseParameters(request.target)),
      // Some clients send a fixed buffer, padded with NULs.
      body(std::string_view(request.body).substr(0, request.body.find('\0')))
{
    if (method != "GET") {
        document = ReadRequestDocument(body, WantsJson(target));
    }
}

const std::string* ParsedRequest::FindParameter(std::string_view name) const
{
    const auto found = std::ranges::find(parameters, name, &Parameter::name);
    return found == parameters.end() ? nullptr : &found->value;
}

}  // namespace Device
