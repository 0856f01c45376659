// Finds elements of more attributes than any device sends.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/AttributeFlood.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <string>

namespace CapabilitySet::xml
{
namespace
{

constexpr std::size_t kSmallestFlood = 64 * 1024;

/// Whether a tag has more attributes than allowed. No '<' can stand inside a tag, so that each one
/// is judged by itself, whatever precedes it. What '!' and '?' begin holds text, quotes and all.
bool IsFlooded(std::string_view tag)
{
    if (!tag.empty() && (tag.front() == '!' || tag.front() == '?'))
        return false;
    int attributes = 0;
    char quote = '\0';
    for (const char c : tag) {
        if (c == '<' || (c == '>' && quote == '\0'))
            return false;
        if (quote != '\0') {
            if (c == quote)
                quote = '\0';
        } else if (c == '"' || c == '\'') {
            quote = c;
            if (++attributes > kMostAttributes)
                return true;
        }
    }
    return false;
}

/// Whether '<', '>' and quotes are the bytes that ASCII has for them.
bool ShowsItsTags(std::string_view text)
{
    if (text.substr(0, 3) == "\xEF\xBB\xBF")
        text.remove_prefix(3);
    text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
    // The parser refuses what does not begin with '<', but for one encoding that it guesses.
    if (text.empty() || text.front() != '<')
        return text.substr(0, 4) != "\x4C\x6F\xA7\x94";
    std::string_view declaration = text.substr(0, std::min(text.find("?>"), text.size()));
    declaration = declaration.substr(0, std::min(declaration.find('>'), declaration.size()));
    const std::size_t encoding = declaration.find("encoding");
    if (declaration.substr(0, 5) != "<?xml" || encoding == std::string_view::npos)
        return true;
    std::string name;
    for (const char c : declaration.substr(encoding + 8)) {
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            name += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        else if (!name.empty() && c != '-' && c != '_')
            break;
    }
    constexpr std::array kFamilies = {"utf8", "usascii", "ascii",   "iso8859", "latin",
                                      "gb",   "big5",    "windows", "cp125",   "cp936",
                                      "euc",  "koi8",    "sjis",    "shift",   "tis620"};
    return std::any_of(kFamilies.begin(), kFamilies.end(),
                       [&name](std::string_view family) { return name.rfind(family, 0) == 0; });
}

}  // namespace

bool HoldsAttributeFlood(std::string_view text)
{
    if (text.size() < kSmallestFlood)
        return false;
    if (!ShowsItsTags(text))
        return true;
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
        text.remove_prefix(at + 1);
        at = 0;
        if (IsFlooded(text))
            return true;
    }
    return false;
}

}  // namespace CapabilitySet::xml
