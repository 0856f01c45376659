// Splits one fuzzed text into several.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace Fuzz
{

/// Separates the chunks of a fuzzed text; occurs in no document, so that mutations rarely create
/// one.
inline constexpr char kSeparator = '\x1E';

/// The text's chunks, at least one and at most `most`; the last one takes the rest.
inline std::vector<std::string_view> SplitChunks(std::string_view text, std::size_t most)
{
    std::vector<std::string_view> chunks;
    while (chunks.size() + 1 < most && text.find(kSeparator) != std::string_view::npos) {
        const std::size_t end = text.find(kSeparator);
        chunks.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    chunks.push_back(text);
    return chunks;
}

/// Removes the text's first byte and returns it as a number; 0 if there is none.
inline unsigned TakeByte(std::string_view& text)
{
    if (text.empty()) {
        return 0;
    }
    const auto byte = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    return byte;
}

}  // namespace Fuzz
