// Faults of the served device on the command line.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/command/FaultArgument.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <vector>

#include "Tool/Failure.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

using Device::Fault;
using Device::FaultKind;

struct Unit
{
    std::string_view name;
    std::uint64_t factor;
};

constexpr std::array kTimes{Unit{"", 1}, Unit{"ms", 1}, Unit{"s", 1000}};
constexpr std::array kSizes{Unit{"", 1}, Unit{"k", 1u << 10}, Unit{"K", 1u << 10},
                            Unit{"M", 1u << 20}};

/// Reads a number with a unit. The limit suits every fault and keeps the product in range.
template <class Units>
std::optional<std::uint64_t> Measure(std::string_view text, const Units& units)
{
    constexpr std::uint64_t kMost = 1u << 31;
    std::uint64_t number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || number > kMost) {
        return std::nullopt;
    }
    const std::string_view unit(read.ptr,
                                static_cast<std::size_t>(text.data() + text.size() - read.ptr));
    const auto found = std::ranges::find(units, unit, &Unit::name);
    return found == units.end() ? std::nullopt : std::optional(number * found->factor);
}

bool SetInterval(Fault& fault, std::string_view value)
{
    const auto time = Measure(value, kTimes);
    fault.interval = std::chrono::milliseconds(time.value_or(0));
    return time.has_value();
}

bool SetBytes(Fault& fault, std::string_view value)
{
    const auto size = Measure(value, kSizes);
    fault.bytes = size.value_or(0);
    return size.has_value();
}

bool SetDrip(Fault& fault, std::string_view value)
{
    const std::size_t slash = std::min(value.find('/'), value.size());
    const bool timed = slash == value.size() ? SetInterval(fault, "100")
                                             : SetInterval(fault, value.substr(slash + 1));
    return timed && SetBytes(fault, value.substr(0, slash));
}

bool SetStall(Fault& fault, std::string_view value)
{
    const std::size_t slash = value.find('/');
    const bool timed =
        slash == std::string_view::npos || SetInterval(fault, value.substr(slash + 1));
    return timed && SetBytes(fault, value.substr(0, slash));
}

bool SetHttpStatus(Fault& fault, std::string_view value)
{
    const auto read = std::from_chars(value.data(), value.data() + value.size(), fault.httpStatus);
    return read.ec == std::errc() && read.ptr == value.data() + value.size();
}

bool SetWord(Fault& fault, std::string_view value)
{
    fault.subStatusCode = value;
    return true;
}

struct Kind
{
    const char* name;
    FaultKind kind;
    bool (*setValue)(Fault& fault, std::string_view value);  ///< null: takes no value
    bool needsValue;
    const char* example;
};

constexpr std::array kKinds{
    Kind{"delay", FaultKind::Delay, SetInterval, true, "delay=2s"},
    Kind{"drip", FaultKind::Drip, SetDrip, true, "drip=10/100ms (bytes and pause)"},
    Kind{"truncate", FaultKind::Truncate, SetBytes, true, "truncate=200 (bytes)"},
    Kind{"stall", FaultKind::Stall, SetStall, true, "stall=200/10s (bytes, and for how long)"},
    Kind{"reset", FaultKind::Reset, nullptr, false, "reset"},
    Kind{"storm", FaultKind::Unauthorized, nullptr, false, "storm"},
    Kind{"stale", FaultKind::StaleNonce, nullptr, false, "stale"},
    Kind{"5xx", FaultKind::ServerError, SetHttpStatus, false, "5xx=503"},
    Kind{"oversize", FaultKind::Oversize, SetBytes, true, "oversize=1M"},
    Kind{"refuse", FaultKind::Refuse, SetWord, false, "refuse=deviceBusy"},
};

[[noreturn]] void Refuse(const std::string& text, const std::string& why)
{
    throw Failure("--fault " + text + ": " + why, kUsage);
}

const Kind& KindNamed(const std::string& text, std::string_view name)
{
    const auto found = std::ranges::find_if(
        kKinds, [name](const Kind& each) { return SameIgnoringCase(each.name, name); });
    if (found != kKinds.end()) {
        return *found;
    }
    std::vector<std::string> names;
    for (const Kind& each : kKinds) {
        names.emplace_back(each.name);
    }
    Refuse(text, "there is no such fault; there are " + Joined(names));
}

/// Cuts off and returns what follows a mark; nothing if the mark is not there.
std::optional<std::string_view> CutBehind(std::string_view& text, char mark)
{
    const std::size_t at = text.find(mark);
    if (at == std::string_view::npos) {
        return std::nullopt;
    }
    const std::string_view behind = text.substr(at + 1);
    text = text.substr(0, at);
    return behind;
}

}  // namespace

Device::Fault ParseFault(const std::string& text)
{
    std::string_view rest = text;
    Fault fault;
    fault.pathPrefix = CutBehind(rest, '@').value_or("");
    if (const auto times = CutBehind(rest, '*')) {
        const auto read =
            std::from_chars(times->data(), times->data() + times->size(), fault.times);
        if (read.ec != std::errc() || read.ptr != times->data() + times->size() ||
            fault.times == 0) {
            Refuse(text, "the star must be followed by the number of requests");
        }
    }
    const auto value = CutBehind(rest, '=');
    const Kind& kind = KindNamed(text, rest);
    fault.kind = kind.kind;
    const bool good =
        value ? kind.setValue != nullptr && kind.setValue(fault, *value) : !kind.needsValue;
    if (!good) {
        Refuse(text, std::string("write it like ") + kind.example);
    }
    if (const std::string wrong = Device::CheckFault(fault); !wrong.empty()) {
        Refuse(text, wrong);
    }
    return fault;
}

}  // namespace Tool
