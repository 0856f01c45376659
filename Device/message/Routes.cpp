// Matching requests against a table of routes.
// SPDX-License-Identifier: Apache-2.0
#include "Device/message/Routes.h"

#include <algorithm>

#include "Device/document/JsonDocument.h"
#include "Device/document/Text.h"

namespace Device
{

std::optional<int> Call::Number(size_t index) const
{
    int number = 0;
    return index < selectors.size() && ReadNumber(WithoutBrackets(selectors[index]), number)
               ? std::optional(number)
               : std::nullopt;
}

std::string_view WithoutBrackets(std::string_view text)
{
    return text.size() >= 2 && text.starts_with('<') && text.ends_with('>')
               ? text.substr(1, text.size() - 2)
               : text;
}

bool MatchPattern(std::string_view pattern, const std::vector<std::string>& path,
                  std::vector<std::string>& selectors)
{
    for (const std::string& segment : path) {
        const size_t end = std::min(pattern.find('/'), pattern.size());
        std::string_view wanted = pattern.substr(0, end);
        pattern.remove_prefix(std::min(end + 1, pattern.size()));
        if (!wanted.ends_with('*')) {
            if (wanted != segment) {
                return false;
            }
            continue;
        }
        wanted.remove_suffix(1);
        if (segment.size() <= wanted.size() || !segment.starts_with(wanted)) {
            return false;
        }
        selectors.push_back(segment.substr(wanted.size()));
    }
    return pattern.empty();
}

Json::Value BodyOf(const ParsedRequest& request)
{
    return request.document.form == RequestDocument::Form::Json
               ? ReadJsonDocument(request.body).value_or(Json::Value())
               : Json::Value();
}

}  // namespace Device
