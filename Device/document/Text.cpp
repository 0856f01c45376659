// Small pieces of text.
// SPDX-License-Identifier: Apache-2.0
#include "Device/document/Text.h"

#include <charconv>

namespace Device
{

bool ReadNumber(std::string_view text, int& number)
{
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end;
}

std::string_view Trimmed(std::string_view text)
{
    constexpr char kBlanks[] = " \t\r\n";
    const size_t first = text.find_first_not_of(kBlanks);
    return first == std::string_view::npos
               ? std::string_view()
               : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

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

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to)
{
    std::string out;
    size_t start = 0;
    for (size_t at = 0; (at = text.find(from, start)) != std::string_view::npos;
         start = at + from.size()) {
        out.append(text, start, at - start).append(to);
    }
    return out.append(text, start);
}

}  // namespace Device
