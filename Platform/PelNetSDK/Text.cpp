// Comparing a server's text, and making it fit to show.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/Text.h"

#include <algorithm>

namespace PelNet
{

namespace
{

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool SameIgnoringCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, LowerCase, LowerCase);
}

std::string Printable(std::string_view text)
{
    constexpr std::size_t kLongest = 80;
    std::string shown(text.substr(0, kLongest));
    std::ranges::replace_if(
        shown, [](char c) { return c < ' ' || c > '~'; }, '?');
    return shown + (text.size() > kLongest ? "..." : "");
}

}  // namespace PelNet
