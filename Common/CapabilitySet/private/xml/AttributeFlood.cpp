// Finds elements of more attributes than any device sends.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/AttributeFlood.h"

#include <cstddef>

namespace CapabilitySet::xml
{
namespace
{

constexpr std::size_t kSmallestFlood = 64 * 1024;

/// Whether a tag has more attributes than allowed. No '<' can stand inside a tag, so that each one
/// is judged by itself, whatever precedes it. What '!' and '?' begin holds text, quotes and all.
bool IsFlooded(std::string_view tag)
{
    if (!tag.empty() && (tag.front() == '!' || tag.front() == '?')) {
        return false;
    }
    int attributes = 0;
    char quote = '\0';
    for (const char c : tag) {
        if (c == '<' || (c == '>' && quote == '\0')) {
            return false;
        }
        if (quote != '\0') {
            if (c == quote) {
                quote = '\0';
            }
        } else if (c == '"' || c == '\'') {
            quote = c;
            if (++attributes > kMostAttributes) {
                return true;
            }
        }
    }
    return false;
}

}  // namespace

bool HoldsAttributeFlood(std::string_view text)
{
    if (text.size() < kSmallestFlood) {
        return false;
    }
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<', at)) {
        text.remove_prefix(at + 1);
        at = 0;
        if (IsFlooded(text)) {
            return true;
        }
    }
    return false;
}

}  // namespace CapabilitySet::xml
