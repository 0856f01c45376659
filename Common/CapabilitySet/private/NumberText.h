// Text to number, exactly as a stream with the classic locale reads it, without a stream.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string_view>

namespace CapabilitySet
{

/// Each function gives what `>>` of a std::istringstream with the classic locale leaves in a
/// variable that was zero. Blanks (" \t\n\v\f\r") and one sign may lead, the longest numeric
/// prefix counts, text that has none gives 0, what is too large gives the nearest limit. A global
/// locale of the client changes nothing. No allocation; any number of threads at once.

/// "-1" is 4294967295: a negative number counts modulo 2^32, one below -4294967295 gives the
/// greatest value.
[[nodiscard]] std::uint32_t StringToUInt(std::string_view text) noexcept;

/// "1e3" is 1, "0x10" is 0.
[[nodiscard]] std::int32_t StringToInt(std::string_view text) noexcept;

[[nodiscard]] std::int64_t StringToInt64(std::string_view text) noexcept;

/// An exponent without digits spoils the whole number: "12e", "12em" and "1e+" are 0. "inf",
/// "nan" and hexadecimal forms are not read. Overflow gives the greatest finite value with its
/// sign, underflow a denormal number or zero.
[[nodiscard]] float StringToFloat(std::string_view text) noexcept;
[[nodiscard]] double StringToDouble(std::string_view text) noexcept;

/// Whether the text is an integer other than zero; "true" is not.
[[nodiscard]] bool StringToBool(std::string_view text) noexcept;

}  // namespace CapabilitySet
