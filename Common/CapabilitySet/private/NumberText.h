// Converts text to numbers exactly as a stream with the classic locale does, without a stream.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

namespace CapabilitySet
{

/// Each function returns what `>>` of a std::istringstream with the classic locale leaves in a
/// variable that was zero: leading blanks (" \t\n\v\f\r") and one sign are allowed, the longest
/// numeric prefix counts, text without one gives 0, and values out of range give the nearest limit.
/// The client's global locale has no effect. No allocation; safe on any number of threads.

/// "-1" is 4294967295: negative numbers wrap modulo 2^32, those below -4294967295 give the greatest
/// value.
[[nodiscard]] std::uint32_t StringToUInt(std::string_view text) noexcept;

/// "1e3" is 1, "0x10" is 0.
[[nodiscard]] std::int32_t StringToInt(std::string_view text) noexcept;

[[nodiscard]] std::int64_t StringToInt64(std::string_view text) noexcept;

/// An exponent without digits makes the number 0: "12e", "12em", "1e+". "inf", "nan" and
/// hexadecimal forms are not accepted. Overflow gives the greatest finite value with its sign,
/// underflow a denormal number or zero.
[[nodiscard]] float StringToFloat(std::string_view text) noexcept;
[[nodiscard]] double StringToDouble(std::string_view text) noexcept;

/// Whether the text is a non-zero integer; "true" is not.
[[nodiscard]] bool StringToBool(std::string_view text) noexcept;

}  // namespace CapabilitySet
