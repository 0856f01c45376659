// A command of the tool as it declares itself: its arguments, examples and action.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Tool/commandline/Argument.h"

namespace Tool
{

/// A command, or a group of commands. Arguments and commands that it returns live as long as it.
class Command
{
public:
    /// `summary` is one line without a full stop.
    Command(std::string name, std::string summary);
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;

    /// Adds a command to this group.
    Command& Add(const std::string& name, const std::string& summary);

    /// "capset ..." as a person would type it; shown at the end of the help.
    Command& Example(std::string example);
    /// A paragraph below the options.
    Command& Note(std::string note);
    /// What the command does. It returns the exit code.
    void SetAction(std::function<int()> action) { action_ = std::move(action); }

    /// The value is set when the command line is read. Vectors take any number of values.
    template <class Value>
    Argument& Positional(const std::string& name, Value& value, const std::string& description)
    {
        return Keep<Value>({Argument::Kind::Positional, name, {}, description, ReaderOf(value)});
    }
    /// "{}" in the description stands for the default, the value at this moment.
    template <class Value>
    Argument& Option(const std::string& name, Value& value, const std::string& placeholder,
                     std::string description)
    {
        if (const std::size_t at = description.find("{}"); at != std::string::npos) {
            if constexpr (requires { TextOf(value); }) {
                description.replace(at, 2, TextOf(value));
            }
        }
        return Keep<Value>(
            {Argument::Kind::Option, name, placeholder, description, ReaderOf(value)});
    }
    Argument& Flag(const std::string& name, bool& value, const std::string& description)
    {
        return Keep<bool>({Argument::Kind::Flag, name, {}, description, ReaderOf(value)});
    }
    /// An option of a type that has no reader of its own.
    Argument& Option(const std::string& name, Argument::Reader reader,
                     const std::string& placeholder, const std::string& description)
    {
        return Keep<void>(
            {Argument::Kind::Option, name, placeholder, description, std::move(reader)});
    }

    [[nodiscard]] const std::string& Name() const { return name_; }
    /// With the groups around it: "capset search content".
    [[nodiscard]] std::string FullName() const;
    [[nodiscard]] const std::string& Summary() const { return summary_; }
    [[nodiscard]] const std::string& NoteText() const { return note_; }
    [[nodiscard]] const std::vector<std::string>& Examples() const { return examples_; }
    [[nodiscard]] const std::vector<std::unique_ptr<Command>>& Commands() const
    {
        return commands_;
    }
    [[nodiscard]] const std::vector<std::unique_ptr<Argument>>& Arguments() const
    {
        return arguments_;
    }
    /// Null when there is no such command in this group.
    [[nodiscard]] const Command* Find(const std::string& name) const;
    [[nodiscard]] int Run() const { return action_(); }

private:
    template <class Value>
    Argument& Keep(Argument argument)
    {
        arguments_.push_back(std::make_unique<Argument>(std::move(argument)));
        if constexpr (
            requires(Value& value) { value.emplace_back(); } ||
            requires(Value& value) { value->emplace_back(); }) {
            arguments_.back()->Repeatable();
        }
        return *arguments_.back();
    }

    const Command* group_ = nullptr;
    std::string name_;
    std::string summary_;
    std::string note_;
    std::vector<std::string> examples_;
    std::vector<std::unique_ptr<Command>> commands_;
    std::vector<std::unique_ptr<Argument>> arguments_;
    std::function<int()> action_;
};

}  // namespace Tool
