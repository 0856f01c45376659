// Points in time as devices write them: "2026-11-20T09:30:00+01:00".
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Device
{

/// Seconds since 1970 of an ISO 8601 text with or without seconds' fraction and offset; a blank may
/// stand for the "T". A text without an offset counts as UTC. Nothing when it is no such text.
std::optional<std::int64_t> ReadDateTime(std::string_view text);

/// The same in UTC: "2026-11-20T08:30:00Z".
std::string WriteDateTime(std::int64_t seconds);

}  // namespace Device
