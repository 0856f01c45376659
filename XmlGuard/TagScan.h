// Finds XML start tags with too many attributes before a parser sees them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>

namespace XmlGuard
{

/// Whether the tag that starts behind its '<' has more than `most` attributes. Tags cannot contain
/// '<', so each one can be judged alone. "<!" and "<?" start no tag.
inline bool HasTooManyAttributes(std::string_view tag, int most)
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
            quote = c == quote ? '\0' : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
            if (++attributes > most) {
                return true;
            }
        }
    }
    return false;
}

/// Whether any element of a UTF-8 document has more than `most` attributes, namespace declarations
/// included. libxml2 compares each attribute of an element with all others before it calls any
/// hook: 200,000 attributes take a minute. Takes linear time.
inline bool HasAttributeFlood(std::string_view text, int most)
{
    for (std::size_t at = text.find('<'); at != std::string_view::npos; at = text.find('<')) {
        text.remove_prefix(at + 1);
        if (HasTooManyAttributes(text, most)) {
            return true;
        }
    }
    return false;
}

}  // namespace XmlGuard
