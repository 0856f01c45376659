// Points in time as devices write them: "2026-11-20T09:30:00+01:00".
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Device
{

/// Parses an ISO 8601 time into seconds since 1970. Fraction and offset are optional, a blank may
/// replace the "T", and a time without an offset is UTC.
std::optional<std::int64_t> ReadDateTime(std::string_view text);

/// Formats a time in UTC: "2026-11-20T08:30:00Z".
std::string WriteDateTime(std::int64_t seconds);

}  // namespace Device
