// Reading request lines and encoding their targets.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/RequestLine.h"

#include <array>
#include <utility>

#include "PelNetSDK/Limits.h"

namespace PelNet
{

namespace
{

constexpr std::array<std::string_view, 4> kMethods = {"GET", "PUT", "POST", "DELETE"};
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

int HexValue(char c)
{
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    const char lower = static_cast<char>(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool IsEscape(std::string_view text, std::size_t at)
{
    return text[at] == '%' && at + 2 < text.size() && HexValue(text[at + 1]) >= 0 &&
           HexValue(text[at + 2]) >= 0;
}

bool MayStandInTarget(char c)
{
    if ((c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')) {
        return true;
    }
    return std::string_view("-._~!$&'()*+,;=:@/?").find(c) != std::string_view::npos;
}

std::string EncodeTarget(std::string_view text)
{
    std::string encoded;
    encoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (MayStandInTarget(text[i]) || IsEscape(text, i)) {
            encoded += text[i];
        } else {
            encoded += '%';
            encoded += kHexDigits[byte >> 4U];
            encoded += kHexDigits[byte & 0x0FU];
        }
    }
    return encoded;
}

}  // namespace

std::optional<RequestLine> ParseRequestLine(std::string_view line)
{
    line = line.substr(0, line.find('\0'));
    for (const char end : {'\n', '\r'}) {
        if (line.ends_with(end)) {
            line.remove_suffix(1);
        }
    }
    // Kept: a line without a method is a GET. Clients rely on it.
    std::string_view method = "GET";
    for (const std::string_view candidate : kMethods) {
        if (line.starts_with(candidate) && line.substr(candidate.size()).starts_with(' ')) {
            method = candidate;
            line.remove_prefix(candidate.size() + 1);
            break;
        }
    }
    if (!line.starts_with('/') || line.find_first_of("\r\n") != std::string_view::npos) {
        return std::nullopt;
    }
    RequestLine request{std::string(method), EncodeTarget(line)};
    return request.target.size() <= limits::kTarget ? std::optional(std::move(request))
                                                    : std::nullopt;
}

std::string DecodePath(std::string_view target)
{
    const std::size_t query = target.find('?');
    const std::string_view path = target.substr(0, query);
    std::string decoded;
    decoded.reserve(target.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (IsEscape(path, i)) {
            decoded += static_cast<char>(HexValue(path[i + 1]) * 16 + HexValue(path[i + 2]));
            i += 2;
        } else {
            decoded += path[i];
        }
    }
    if (query != std::string_view::npos) {
        decoded += target.substr(query);
    }
    return decoded;
}

}  // namespace PelNet
