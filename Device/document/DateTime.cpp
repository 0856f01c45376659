// Points in time as devices write them.
// SPDX-License-Identifier: Apache-2.0
#include "Device/document/DateTime.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>

namespace Device
{
namespace
{

// Takes exactly `count` digits from the front.
std::optional<int> TakeDigits(std::string_view& text, size_t count)
{
    int number = 0;
    const char* end = text.data() + std::min(count, text.size());
    if (text.size() < count || text[0] < '0' || text[0] > '9' ||
        std::from_chars(text.data(), end, number).ptr != end) {
        return std::nullopt;
    }
    text.remove_prefix(count);
    return number;
}

bool TakeOneOf(std::string_view& text, std::string_view characters)
{
    if (text.empty() || characters.find(text[0]) == std::string_view::npos) {
        return false;
    }
    text.remove_prefix(1);
    return true;
}

void DropFraction(std::string_view& text)
{
    if (TakeOneOf(text, ".")) {
        text.remove_prefix(std::min(text.find_first_not_of("0123456789"), text.size()));
    }
}

// Takes "Z", "+01:00", "-0330" or nothing; returns seconds east of Greenwich.
std::optional<int> TakeOffset(std::string_view& text)
{
    if (text.empty() || TakeOneOf(text, "Z")) {
        return 0;
    }
    const int sign = text[0] == '-' ? -1 : 1;
    if (!TakeOneOf(text, "+-")) {
        return std::nullopt;
    }
    const std::optional<int> hours = TakeDigits(text, 2);
    TakeOneOf(text, ":");
    const std::optional<int> minutes = hours ? TakeDigits(text, 2) : std::nullopt;
    return minutes ? std::optional(sign * (*hours * 3600 + *minutes * 60)) : std::nullopt;
}

}  // namespace

std::optional<std::int64_t> ReadDateTime(std::string_view text)
{
    // The separators behind year, month, day, hour, minute and second.
    constexpr std::string_view kSeparators[] = {"-", "-", "T ", ":", ":", ""};
    int fields[6] = {};
    for (size_t i = 0; i < std::size(fields); ++i) {
        const std::optional<int> number = TakeDigits(text, i == 0 ? 4 : 2);
        if (!number || !(kSeparators[i].empty() || TakeOneOf(text, kSeparators[i]))) {
            return std::nullopt;
        }
        fields[i] = *number;
    }
    DropFraction(text);
    const std::optional<int> offset = TakeOffset(text);
    const std::chrono::year_month_day day{std::chrono::year(fields[0]),
                                          std::chrono::month(static_cast<unsigned>(fields[1])),
                                          std::chrono::day(static_cast<unsigned>(fields[2]))};
    if (!offset || !text.empty() || !day.ok() || fields[3] > 24 || fields[4] > 59 ||
        fields[5] > 60) {
        return std::nullopt;
    }
    const std::int64_t days = std::chrono::sys_days(day).time_since_epoch().count();
    return days * 86400 + fields[3] * 3600 + fields[4] * 60 + fields[5] - *offset;
}

std::string WriteDateTime(std::int64_t seconds)
{
    const std::chrono::sys_seconds time{std::chrono::seconds(seconds)};
    const auto midnight = std::chrono::floor<std::chrono::days>(time);
    const std::chrono::year_month_day day(midnight);
    const std::chrono::hh_mm_ss clock(time - midnight);
    char text[64];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(day.year()),
                  static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                  static_cast<int>(clock.hours().count()),
                  static_cast<int>(clock.minutes().count()),
                  static_cast<int>(clock.seconds().count()));
    return text;
}

}  // namespace Device
