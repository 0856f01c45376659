// One option, flag or positional argument of a command.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace Tool
{

/// Durations on the command line: "15", "0.5", "1s", "500ms", "2m". Without a unit: seconds.
using Seconds = std::chrono::duration<double>;

/// How an argument is written, explained and read. The setters return the argument itself.
class Argument
{
public:
    enum class Kind
    {
        Positional,
        Option,  ///< takes a value
        Flag,
    };

    /// Stores the text as the argument's value. Returns what is wrong with it, or "".
    using Reader = std::function<std::string(const std::string& text)>;

    Argument(Kind kind, std::string name, std::string placeholder, std::string description,
             Reader reader);

    Argument& Group(std::string heading);
    Argument& Required();
    /// Takes any number of values: an option is repeated, a positional argument takes the rest.
    Argument& Repeatable();
    /// One word may hold several values, separated by commas.
    Argument& SeparatedByCommas();
    Argument& OneOf(std::vector<std::string> values);
    /// Numbers and durations must lie between these, both included.
    Argument& Between(double least, double most);
    Argument& ExistingFile();
    /// `check` returns what is wrong with a text, or "".
    Argument& Checked(Reader check);
    /// Must not be given together with the named option.
    Argument& Excludes(std::string option);
    /// Must be given together with the named option.
    Argument& Needs(std::string option);
    /// Like --help: when it is given, required arguments may be missing.
    Argument& WaivesRequired();

    [[nodiscard]] Kind What() const { return kind_; }
    [[nodiscard]] const std::string& Name() const { return name_; }
    [[nodiscard]] const std::string& Placeholder() const { return placeholder_; }
    [[nodiscard]] const std::string& Description() const { return description_; }
    [[nodiscard]] const std::string& Heading() const { return group_; }
    [[nodiscard]] bool IsRequired() const { return required_; }
    [[nodiscard]] bool IsRepeatable() const { return repeatable_; }
    [[nodiscard]] bool DoesWaiveRequired() const { return waivesRequired_; }
    [[nodiscard]] const std::vector<std::string>& Excluded() const { return excluded_; }
    [[nodiscard]] const std::string& Needed() const { return needed_; }

    /// Reads the words given for this argument. Returns what is wrong with them, or "".
    [[nodiscard]] std::string Read(const std::vector<std::string>& words) const;

private:
    Kind kind_;
    std::string name_;         ///< "--user", or of a positional argument "device"
    std::string placeholder_;  ///< what stands for the value in help texts
    std::string description_;
    std::string group_;
    Reader reader_;
    std::vector<Reader> checks_;
    std::vector<std::string> excluded_;
    std::string needed_;
    bool required_ = false;
    bool repeatable_ = false;
    bool commas_ = false;
    bool waivesRequired_ = false;
};

// Readers for the types that arguments set.
Argument::Reader ReaderOf(std::string& value);
Argument::Reader ReaderOf(bool& value);
Argument::Reader ReaderOf(int& value);
Argument::Reader ReaderOf(unsigned int& value);
Argument::Reader ReaderOf(Seconds& value);
Argument::Reader ReaderOf(std::vector<std::string>& values);
Argument::Reader ReaderOf(std::vector<int>& values);

// Values as descriptions show them.
std::string TextOf(const std::string& value);
std::string TextOf(int value);
std::string TextOf(Seconds value);

template <class Value>
Argument::Reader ReaderOf(std::optional<Value>& value)
{
    return [&value](const std::string& text) {
        if (!value) {
            value.emplace();
        }
        return ReaderOf(*value)(text);
    };
}

}  // namespace Tool
