// The time span of a search.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/SearchTime.h"

#include <algorithm>
#include <chrono>
#include <optional>
#include <string_view>

#include "Tool/Failure.h"

namespace Tool
{

namespace
{

constexpr std::size_t kDay = 10;      // 2026-11-20
constexpr std::size_t kMinutes = 16;  // 2026-11-20T08:30
constexpr std::size_t kSeconds = 19;  // 2026-11-20T08:30:00

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// True if the text has digits where the form has "0" and otherwise the form's own characters.
bool HasForm(std::string_view text, std::string_view form)
{
    return std::ranges::equal(text, form, [](char given, char wanted) {
        return wanted == '0' ? IsDigit(given) : given == wanted;
    });
}

int NumberAt(std::string_view text, std::size_t place, std::size_t digits)
{
    int number = 0;
    for (const char c : text.substr(place, digits)) {
        number = number * 10 + (c - '0');
    }
    return number;
}

struct Moment
{
    std::chrono::sys_seconds time;
    bool hasZone = false;
};

/// The moment that a day and a clock time of the form HH:MM[:SS][zone] name.
std::optional<Moment> ReadMoment(std::string_view day, std::string_view clock)
{
    using namespace std::chrono;
    Moment moment;
    if (!HasForm(day, "0000-00-00")) {
        return std::nullopt;
    }
    const year_month_day date{year(NumberAt(day, 0, 4)),
                              month(static_cast<unsigned int>(NumberAt(day, 5, 2))),
                              std::chrono::day(static_cast<unsigned int>(NumberAt(day, 8, 2)))};
    const std::size_t end = std::min(clock.find_first_of("Z+-"), clock.size());
    const std::string_view zone = clock.substr(end);
    clock = clock.substr(0, end);
    const bool isClock = HasForm(clock, "00:00") || HasForm(clock, "00:00:00");
    const bool isZone =
        zone.empty() || zone == "Z" || HasForm(zone, "+00:00") || HasForm(zone, "-00:00");
    if (!date.ok() || !isClock || !isZone) {
        return std::nullopt;
    }
    const int hour = NumberAt(clock, 0, 2);
    const int minute = NumberAt(clock, 3, 2);
    const int second = clock.size() > 5 ? NumberAt(clock, 6, 2) : 0;
    if (hour > 23 || minute > 59 || second > 59) {
        return std::nullopt;
    }
    moment.time = sys_days(date) + hours(hour) + minutes(minute) + seconds(second);
    moment.hasZone = !zone.empty();
    if (zone.size() > 1) {
        const minutes offset(NumberAt(zone, 1, 2) * 60 + NumberAt(zone, 4, 2));
        moment.time -= zone.front() == '-' ? -offset : offset;
    }
    return moment;
}

/// `clock` is the time of a day without one.
std::optional<Moment> ReadTime(std::string_view text, std::string_view clock)
{
    if (text.size() <= kDay) {
        return ReadMoment(text, clock);
    }
    const bool isSeparated = text[kDay] == 'T' || text[kDay] == ' ';
    return isSeparated ? ReadMoment(text.substr(0, kDay), text.substr(kDay + 1)) : std::nullopt;
}

constexpr std::string_view kFirstSecond = "00:00:00";
constexpr std::string_view kLastSecond = "23:59:59";

/// The time with seconds and a zone.
std::string Completed(std::string time, std::string_view clock, const std::string& zone)
{
    if (time.size() == kDay) {
        return time + "T" + std::string(clock) + zone;
    }
    time[kDay] = 'T';
    if (time.size() == kMinutes || time[kMinutes] != ':') {
        time.insert(kMinutes, ":00");
    }
    return time.size() == kSeconds ? time + zone : time;
}

}  // namespace

std::string CheckTime(const std::string& text)
{
    return ReadTime(text, kFirstSecond)
               ? std::string()
               : "\"" + text + "\" is not a time: write 2026-11-20 or 2026-11-20T08:30:00";
}

std::string StartTime(const TimeOptions& options, const std::string& zone)
{
    const std::optional<Moment> from = ReadTime(options.from, kFirstSecond);
    const std::optional<Moment> to = ReadTime(options.to, kLastSecond);
    // A time with a zone and one without cannot be compared: the device's zone is not known.
    if (from && to && from->hasZone == to->hasZone && from->time > to->time) {
        throw Failure("--from " + options.from + " is later than --to " + options.to, kUsage);
    }
    return Completed(options.from.empty() ? "1970-01-01" : options.from, kFirstSecond, zone);
}

std::string EndTime(const TimeOptions& options, const std::string& zone)
{
    return Completed(options.to.empty() ? "2037-12-31" : options.to, kLastSecond, zone);
}

}  // namespace Tool
