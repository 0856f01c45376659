// Formatting, splitting, replacing and trimming text.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/StringUtil.h"

#include <array>
#include <cstdio>

namespace Keel::StringUtil
{

std::string FormatString(const char* format, ...)
{
    std::va_list arguments;
    va_start(arguments, format);
    std::string text = FormatStringV(format, arguments);
    va_end(arguments);
    return text;
}

std::string FormatStringV(const char* format, std::va_list arguments)
{
    std::va_list again;
    va_copy(again, arguments);
    std::array<char, 512> common;
    // NOLINTNEXTLINE(clang-analyzer-valist.Uninitialized): every caller has started the list
    const int length = std::vsnprintf(common.data(), common.size(), format, arguments);
    std::string text;
    if (length >= 0 && static_cast<std::size_t>(length) < common.size()) {
        text.assign(common.data(), static_cast<std::size_t>(length));
    } else if (length >= 0) {
        text.resize(static_cast<std::size_t>(length));
        std::vsnprintf(text.data(), text.size() + 1, format, again);
    }
    va_end(again);
    return text;
}

std::vector<std::string> SplitString(std::string_view text, std::string_view separator)
{
    std::vector<std::string> pieces;
    std::size_t begin = 0;
    if (!separator.empty()) {
        for (std::size_t end = text.find(separator); end != std::string_view::npos;
             end = text.find(separator, begin)) {
            pieces.emplace_back(text.substr(begin, end - begin));
            begin = end + separator.size();
        }
    }
    pieces.emplace_back(text.substr(begin));
    return pieces;
}

std::string StringReplace(std::string_view text, std::string_view from, std::string_view to)
{
    std::string replaced;
    std::size_t begin = 0;
    if (!from.empty()) {
        for (std::size_t end = text.find(from); end != std::string_view::npos;
             end = text.find(from, begin)) {
            replaced.append(text.substr(begin, end - begin)).append(to);
            begin = end + from.size();
        }
    }
    replaced.append(text.substr(begin));
    return replaced;
}

std::string StringTrim(std::string_view text, std::string_view blanks)
{
    const std::size_t begin = text.find_first_not_of(blanks);
    if (begin == std::string_view::npos) {
        return {};
    }
    const std::size_t end = text.find_last_not_of(blanks) + 1;
    return std::string(text.substr(begin, end - begin));
}

}  // namespace Keel::StringUtil
