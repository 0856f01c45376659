// Taking a request apart.
// SPDX-License-Identifier: Apache-2.0
#include "Device/ParsedRequest.h"

#include <algorithm>
#include <charconv>

#include "Device/StatusDocument.h"

namespace Device
{
namespace
{

// The pieces of a text between separators; empty ones are dropped.
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

std::string UndoPercentEncoding(std::string_view text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        unsigned int byte = 0;
        const char* digits = text.data() + i + 1;
        if (text[i] == '%' && i + 2 < text.size() &&
            std::from_chars(digits, digits + 2, byte, 16).ptr == digits + 2) {
            out += static_cast<char>(byte);
            i += 2;
        } else {
            out += text[i];
        }
    }
    return out;
}

std::string PercentEncoded(std::string_view text, bool (*keep)(char))
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    std::string out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (keep(c)) {
            out += c;
            continue;
        }
        out += '%';
        out += kDigits[byte >> 4];
        out += kDigits[byte & 15];
    }
    return out;
}

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

ParsedRequest::ParsedRequest(const Request& request)
    : method(request.method),
      target(request.target),
      path(ParsePath(request.target)),
      parameters(ParseParameters(request.target)),
      // Clients that send a fixed buffer fill it up with NULs.
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

bool ReadNumber(std::string_view text, int& number)
{
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

}  // namespace Device
