// Converts text to numbers exactly as a stream with the classic locale does, without a stream.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/NumberText.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace CapabilitySet
{

namespace
{

constexpr bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}
constexpr bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// Removes leading blanks and one sign; true for a minus.
bool TakeSign(std::string_view& text)
{
    // The usual case first: a character above '-' is neither blank nor sign.
    if (!text.empty() && text.front() > '-') {
        return false;
    }
    std::size_t begin = 0;
    while (begin < text.size() && IsBlank(text[begin])) {
        ++begin;
    }
    const bool isNegative = begin < text.size() && text[begin] == '-';
    begin += begin < text.size() && (isNegative || text[begin] == '+') ? 1 : 0;
    text.remove_prefix(begin);
    return isNegative;
}

/// The number at the start of the text, or limit + 1 if it exceeds the limit.
template <std::uint64_t limit>
std::uint64_t ReadDigits(std::string_view text)
{
    static_assert(limit < std::uint64_t{1} << 63, "one digit too many must not wrap around");
    std::uint64_t value = 0;
    for (const char c : text) {
        if (!IsDigit(c)) {
            break;
        }
        if (value > limit / 10) {
            return limit + 1;
        }
        value = value * 10 + static_cast<std::uint64_t>(c - '0');
    }
    return std::min(value, limit + 1);
}

template <class Integer>
Integer ReadSigned(std::string_view text)
{
    constexpr auto max = static_cast<std::uint64_t>(std::numeric_limits<Integer>::max());
    const bool isNegative = TakeSign(text);
    const std::uint64_t value = ReadDigits<max>(text);
    // The smallest value is one further from zero than the greatest.
    return static_cast<Integer>(isNegative ? 0 - value : std::min(value, max));
}

/// Length of the mantissa at the start of the text; 0 if it has no digit.
std::size_t MantissaLength(std::string_view text)
{
    std::size_t length = 0;
    std::size_t points = 0;
    for (; length < text.size(); ++length) {
        if (text[length] == '.' && points == 0) {
            ++points;
        } else if (!IsDigit(text[length])) {
            break;
        }
    }
    return length > points ? length : 0;
}

/// Length of the exponent at the start of the text; 0 if there is none, npos if it has no digits,
/// in which case a stream drops the mantissa too.
std::size_t ExponentLength(std::string_view text)
{
    if (text.empty() || (text[0] != 'e' && text[0] != 'E')) {
        return 0;
    }
    const std::size_t digits = text.size() > 1 && (text[1] == '+' || text[1] == '-') ? 2 : 1;
    const std::size_t end = std::min(text.find_first_not_of("0123456789", digits), text.size());
    return end > digits ? end : std::string_view::npos;
}

/// Whether an unrepresentable number is too large, as opposed to too small.
bool IsLarge(std::string_view mantissa, std::string_view exponent)
{
    const std::size_t point = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t first = mantissa.find_first_not_of("0.");
    const auto leading = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(first);
    const std::int64_t scale = exponent.empty() ? 0 : StringToInt(exponent.substr(1));
    return leading + scale > 0;
}

template <class Real>
Real ReadReal(std::string_view text)
{
    const bool isNegative = TakeSign(text);
    const std::size_t mantissa = MantissaLength(text);
    const std::size_t exponent = ExponentLength(text.substr(mantissa));
    if (mantissa == 0 || exponent == std::string_view::npos) {
        return 0;
    }
    Real value = 0;
    const std::from_chars_result result =
        std::from_chars(text.data(), text.data() + mantissa + exponent, value);
    if (result.ec == std::errc::result_out_of_range) {
        const bool isLarge = IsLarge(text.substr(0, mantissa), text.substr(mantissa, exponent));
        value = isLarge ? std::numeric_limits<Real>::max() : Real{0};
    }
    return isNegative ? -value : value;
}

}  // namespace

std::uint32_t StringToUInt(std::string_view text) noexcept
{
    constexpr std::uint64_t max = std::numeric_limits<std::uint32_t>::max();
    const bool isNegative = TakeSign(text);
    const std::uint64_t value = ReadDigits<max>(text);
    return static_cast<std::uint32_t>(value > max ? max : isNegative ? 0 - value : value);
}

std::int32_t StringToInt(std::string_view text) noexcept
{
    return ReadSigned<std::int32_t>(text);
}

std::int64_t StringToInt64(std::string_view text) noexcept
{
    return ReadSigned<std::int64_t>(text);
}

float StringToFloat(std::string_view text) noexcept
{
    return ReadReal<float>(text);
}

double StringToDouble(std::string_view text) noexcept
{
    return ReadReal<double>(text);
}

bool StringToBool(std::string_view text) noexcept
{
    return StringToInt64(text) != 0;
}

}  // namespace CapabilitySet
