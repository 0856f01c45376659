// Bytes as Base64 text.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Base64.h"

namespace Tool
{

std::string ToBase64(std::string_view bytes)
{
    constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        const std::string_view group = bytes.substr(i, 3);
        unsigned int bits = 0;
        for (std::size_t j = 0; j < 3; ++j) {
            bits = bits << 8 | (j < group.size() ? static_cast<unsigned char>(group[j]) : 0u);
        }
        for (std::size_t j = 0; j < 4; ++j) {
            text += j <= group.size() ? kDigits[bits >> (18 - 6 * j) & 63] : '=';
        }
    }
    return text;
}

}  // namespace Tool
