// One option, flag or positional argument of a command.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/commandline/Argument.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <sstream>
#include <string_view>
#include <utility>

#include <sys/stat.h>

#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

template <class Number>
bool ReadWhole(const std::string& text, Number& number)
{
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

template <class Number>
std::string ReadNumber(const std::string& text, Number& value)
{
    return ReadWhole(text, value) ? std::string() : Quoted(text) + " is not a whole number";
}

/// The seconds that a text like "1s" means.
std::optional<double> ReadSeconds(const std::string& text)
{
    struct Unit
    {
        std::string_view name;
        double seconds;
    };
    constexpr std::array kUnits{Unit{"", 1}, Unit{"s", 1}, Unit{"ms", 0.001}, Unit{"m", 60},
                                Unit{"min", 60}};
    double number = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    const std::string_view unit(result.ptr, static_cast<std::size_t>(end - result.ptr));
    const auto found = std::ranges::find(kUnits, unit, &Unit::name);
    if (result.ec != std::errc() || found == kUnits.end()) {
        return std::nullopt;
    }
    return number * found->seconds;
}

std::string Plain(double number)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << number;
    return text.str();
}

std::vector<std::string> SplitAtCommas(const std::string& word)
{
    std::vector<std::string> parts(1);
    for (const char c : word) {
        if (c == ',') {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

}  // namespace

Argument::Argument(Kind kind, std::string name, std::string placeholder, std::string description,
                   Reader reader)
    : kind_(kind),
      name_(std::move(name)),
      placeholder_(std::move(placeholder)),
      description_(std::move(description)),
      reader_(std::move(reader))
{
}

Argument& Argument::Group(std::string heading)
{
    group_ = std::move(heading);
    return *this;
}

Argument& Argument::Required()
{
    required_ = true;
    return *this;
}

Argument& Argument::Repeatable()
{
    repeatable_ = true;
    return *this;
}

Argument& Argument::SeparatedByCommas()
{
    commas_ = true;
    return *this;
}

Argument& Argument::OneOf(std::vector<std::string> values)
{
    return Checked([values = std::move(values)](const std::string& text) {
        const bool isKnown = std::ranges::find(values, text) != values.end();
        return isKnown ? std::string() : Quoted(text) + " is not one of " + Joined(values, "or");
    });
}

Argument& Argument::Between(double least, double most)
{
    return Checked([least, most](const std::string& text) {
        const std::optional<double> number = ReadSeconds(text);
        const bool isGood = !number || (*number >= least && *number <= most);
        return isGood ? std::string()
                      : Quoted(text) + " is not between " + Plain(least) + " and " + Plain(most);
    });
}

Argument& Argument::ExistingFile()
{
    return Checked([](const std::string& text) {
        struct stat status
        {
        };
        const bool isFile = stat(text.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
        return isFile ? std::string() : "there is no file " + Quoted(text);
    });
}

Argument& Argument::Checked(Reader check)
{
    checks_.push_back(std::move(check));
    return *this;
}

Argument& Argument::Excludes(std::string option)
{
    excluded_.push_back(std::move(option));
    return *this;
}

Argument& Argument::Needs(std::string option)
{
    needed_ = std::move(option);
    return *this;
}

Argument& Argument::WaivesRequired()
{
    waivesRequired_ = true;
    return *this;
}

std::string Argument::Read(const std::vector<std::string>& words) const
{
    for (const std::string& word : words) {
        for (const std::string& text : commas_ ? SplitAtCommas(word) : std::vector{word}) {
            for (const Reader& check : checks_) {
                if (std::string problem = check(text); !problem.empty()) {
                    return problem;
                }
            }
            if (std::string problem = reader_(text); !problem.empty()) {
                return problem;
            }
        }
    }
    return {};
}

std::string TextOf(const std::string& value)
{
    return value;
}

std::string TextOf(int value)
{
    return std::to_string(value);
}

std::string TextOf(Seconds value)
{
    return Plain(value.count()) + "s";
}

Argument::Reader ReaderOf(std::string& value)
{
    return [&value](const std::string& text) {
        value = text;
        return std::string();
    };
}

Argument::Reader ReaderOf(bool& value)
{
    return [&value](const std::string& /*text*/) {
        value = true;
        return std::string();
    };
}

Argument::Reader ReaderOf(int& value)
{
    return [&value](const std::string& text) { return ReadNumber(text, value); };
}

Argument::Reader ReaderOf(unsigned int& value)
{
    return [&value](const std::string& text) { return ReadNumber(text, value); };
}

Argument::Reader ReaderOf(Seconds& value)
{
    return [&value](const std::string& text) {
        const std::optional<double> seconds = ReadSeconds(text);
        value = Seconds(seconds.value_or(0));
        return seconds ? std::string()
                       : Quoted(text) + " is not a time: write 15, 0.5, 500ms or 2m";
    };
}

Argument::Reader ReaderOf(std::vector<std::string>& values)
{
    return [&values](const std::string& text) {
        values.push_back(text);
        return std::string();
    };
}

Argument::Reader ReaderOf(std::vector<int>& values)
{
    return [&values](const std::string& text) { return ReadNumber(text, values.emplace_back()); };
}

}  // namespace Tool
