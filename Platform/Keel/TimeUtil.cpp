// Reading times as the protocol writes them.
// SPDX-License-Identifier: Apache-2.0
#include "Keel/TimeUtil.h"

#include <chrono>
#include <optional>

namespace Keel::TimeUtil
{

namespace
{

using std::chrono::seconds;
using std::chrono::sys_seconds;

/// Takes what it recognises off the front of a text. `Good` is false once something was missing.
class Scanner
{
public:
    explicit Scanner(std::string_view text) : rest_(text) {}

    /// Exactly `digits` decimal digits.
    unsigned Number(std::size_t digits)
    {
        unsigned value = 0;
        for (std::size_t i = 0; i < digits; ++i) {
            const bool isDigit = i < rest_.size() && rest_[i] >= '0' && rest_[i] <= '9';
            isGood_ = isGood_ && isDigit;
            value = isDigit ? value * 10 + static_cast<unsigned>(rest_[i] - '0') : 0;
        }
        rest_.remove_prefix(digits < rest_.size() ? digits : rest_.size());
        return value;
    }

    bool Has(char c)
    {
        const bool isThere = !rest_.empty() && rest_.front() == c;
        rest_.remove_prefix(isThere ? 1 : 0);
        return isThere;
    }

    void Need(char c) { isGood_ = Has(c) && isGood_; }
    void Need(bool condition) { isGood_ = isGood_ && condition; }

    /// Skips a decimal fraction.
    void Fraction()
    {
        if (!Has('.')) {
            return;
        }
        const std::size_t end = rest_.find_first_not_of("0123456789");
        const std::size_t digits = end == std::string_view::npos ? rest_.size() : end;
        Need(digits > 0);
        rest_.remove_prefix(digits);
    }

    [[nodiscard]] bool Good() const { return isGood_; }
    [[nodiscard]] bool AtEnd() const { return rest_.empty(); }

private:
    std::string_view rest_;
    bool isGood_ = true;
};

/// Date and time of day, without a zone. Midnight at the end of a day may be written 24:00:00.
sys_seconds ReadDatetime(Scanner& scanner, char separator)
{
    const std::chrono::year year{static_cast<int>(scanner.Number(4))};
    scanner.Need('-');
    const std::chrono::month month{scanner.Number(2)};
    scanner.Need('-');
    const std::chrono::day day{scanner.Number(2)};
    scanner.Need(separator);
    const unsigned hours = scanner.Number(2);
    scanner.Need(':');
    const unsigned minutes = scanner.Number(2);
    scanner.Need(':');
    const unsigned secs = scanner.Number(2);
    const std::chrono::year_month_day date{year, month, day};
    const bool isDayEnd = hours == 24 && minutes == 0 && secs == 0;
    scanner.Need(date.ok() && (isDayEnd || (hours < 24 && minutes < 60 && secs < 60)));
    if (!scanner.Good()) {
        return {};
    }
    return std::chrono::sys_days{date} + seconds{hours * 3600 + minutes * 60 + secs};
}

/// The offset from UTC, if the text has one.
std::optional<seconds> ReadZone(Scanner& scanner)
{
    if (scanner.Has('Z')) {
        return seconds{0};
    }
    const bool isWest = scanner.Has('-');
    if (!isWest && !scanner.Has('+')) {
        return std::nullopt;
    }
    const unsigned hours = scanner.Number(2);
    scanner.Need(':');
    const unsigned minutes = scanner.Number(2);
    scanner.Need(hours < 24 && minutes < 60);
    const seconds offset{hours * 3600 + minutes * 60};
    return isWest ? -offset : offset;
}

/// How far local clocks are ahead of UTC at a moment.
seconds LocalOffset(sys_seconds moment)
{
    const std::time_t utc = std::chrono::system_clock::to_time_t(moment);
    std::tm local{};
#if defined(_WIN32)
    if (localtime_s(&local, &utc) != 0)
#else
    if (localtime_r(&utc, &local) == nullptr)
#endif
    {
        return seconds{0};
    }
    const std::chrono::year_month_day date{
        std::chrono::year{local.tm_year + 1900},
        std::chrono::month{static_cast<unsigned>(local.tm_mon) + 1},
        std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
    const sys_seconds clock = std::chrono::sys_days{date} + std::chrono::hours{local.tm_hour} +
                              std::chrono::minutes{local.tm_min} + seconds{local.tm_sec};
    return clock - moment;
}

/// The moment at which local clocks show `local`. If there are two, the first; if the clocks skip
/// that time, as they ran before the change. mktime leaves both cases open.
sys_seconds LocalToUtc(sys_seconds local)
{
#if !defined(_WIN32)
    tzset();
#endif
    const seconds before = LocalOffset(local - std::chrono::days{1});
    const seconds after = LocalOffset(local + std::chrono::days{1});
    const bool isFirstRight = LocalOffset(local - before) == before;
    const bool isSecondRight = LocalOffset(local - after) == after;
    return local - (isFirstRight || !isSecondRight ? before : after);
}

}  // namespace

std::time_t ISODatetime2TimeT(std::string_view text)
{
    Scanner scanner(text);
    const sys_seconds written = ReadDatetime(scanner, 'T');
    scanner.Fraction();
    const std::optional<seconds> zone = ReadZone(scanner);
    if (!scanner.Good() || !scanner.AtEnd()) {
        return -1;
    }
    return std::chrono::system_clock::to_time_t(zone ? written - *zone : LocalToUtc(written));
}

std::time_t StrDatetime2TimeT(std::string_view text)
{
    Scanner scanner(text);
    const sys_seconds written = ReadDatetime(scanner, ' ');
    if (!scanner.Good() || !scanner.AtEnd()) {
        return -1;
    }
    return std::chrono::system_clock::to_time_t(LocalToUtc(written));
}

}  // namespace Keel::TimeUtil
