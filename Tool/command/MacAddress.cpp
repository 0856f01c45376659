// MAC addresses in the forms that people use.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/MacAddress.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

constexpr std::string_view kHexDigits = "0123456789abcdef";
constexpr std::string_view kSeparators = ":-. ";
constexpr std::size_t kPrefixDigits = 6;

std::string LowerCase(std::string text)
{
    for (char& each : text) {
        each = each >= 'A' && each <= 'Z' ? static_cast<char>(each - 'A' + 'a') : each;
    }
    return text;
}

std::vector<std::string> Split(const std::string& text, char separator)
{
    std::vector<std::string> groups(1);
    for (const char each : text) {
        if (each == separator) {
            groups.emplace_back();
        } else {
            groups.back() += each;
        }
    }
    return groups;
}

/// Adds the leading zero of bytes with one digit. False unless the groups are bytes, or all have
/// four or six digits; then the last may be shorter by whole bytes.
bool CompleteGroups(std::vector<std::string>& groups, bool oneDigitIsByte)
{
    const std::size_t width = groups.front().size();
    if (width == 4 || width == 6) {
        const std::size_t last = groups.back().size();
        return last > 0 && last <= width && last % 2 == 0 &&
               std::all_of(groups.begin(), groups.end() - 1,
                           [width](const std::string& each) { return each.size() == width; });
    }
    for (std::string& each : groups) {
        if (each.size() == 1 && oneDigitIsByte) {
            each.insert(0, 1, '0');
        }
        if (each.size() != 2) {
            return false;
        }
    }
    return true;
}

/// True if an address, or the first bytes of one, can have this many digits.
bool IsLength(std::size_t digits)
{
    return (digits >= kPrefixDigits && digits <= 12 && digits % 2 == 0) || digits == 16;
}

}  // namespace

std::optional<MacAddress> MacAddress::Read(std::string_view text)
{
    std::string digits = LowerCase(Trimmed(text));
    if (const std::size_t place = digits.find_first_of(kSeparators); place != std::string::npos) {
        const char separator = digits[place];
        std::vector<std::string> groups = Split(digits, separator);
        if (!CompleteGroups(groups, separator == ':' || separator == '-')) {
            return std::nullopt;
        }
        digits.clear();
        for (const std::string& each : groups) {
            digits += each;
        }
    }
    if (!IsLength(digits.size()) || digits.find_first_not_of(kHexDigits) != std::string::npos) {
        return std::nullopt;
    }
    return MacAddress(std::move(digits));
}

std::string MacAddress::Prefix() const
{
    return digits_.substr(0, kPrefixDigits);
}

std::string MacAddress::Text() const
{
    std::string text = digits_.substr(0, 2);
    for (std::size_t i = 2; i < digits_.size(); i += 2) {
        text += ":" + digits_.substr(i, 2);
    }
    return text;
}

unsigned int MacAddress::FirstByte() const
{
    unsigned int byte = 0;
    std::from_chars(digits_.data(), digits_.data() + 2, byte, 16);
    return byte;
}

bool MacAddress::IsLocallyAdministered() const
{
    return (FirstByte() & 2U) != 0;
}

bool MacAddress::IsMulticast() const
{
    return (FirstByte() & 1U) != 0;
}

bool MacAddress::IsBroadcast() const
{
    return digits_ == std::string(12, 'f');
}

}  // namespace Tool
