// Reads the command line. CLI11 splits the words; it takes seconds to compile, so no other source
// includes it.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/commandline/CommandLine.h"

#include <algorithm>
#include <map>

#include <CLI/App.hpp>
#include <CLI/Config.hpp>
#include <CLI/Formatter.hpp>

#include "Tool/Failure.h"
#include "Tool/commandline/Help.h"
#include "Tool/terminal/Terminal.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

constexpr const char* kHelp = "--help";
constexpr const char* kHelpAll = "--help-all";
constexpr const char* kVersion = "--version";

/// What the words gave for each argument. Text is only split here: conversions and checks are the
/// arguments' own.
class SplitWords
{
public:
    SplitWords(const Command& program, int argc, const char* const* argv)
    {
        app_.add_flag(kHelpAll);
        app_.add_flag(kVersion);
        Declare(program, app_);
        try {
            app_.parse(argc, argv);
        } catch (const CLI::ParseError& error) {
            problem_ = error.what();
        }
        Choose(program, app_);
    }

    [[nodiscard]] const Command& Chosen() const { return *chosen_; }
    /// Why the words could not be split.
    [[nodiscard]] const std::string& Problem() const { return problem_; }
    /// Words that belong to nothing.
    [[nodiscard]] std::vector<std::string> Extras() const { return app_.remaining(true); }

    [[nodiscard]] bool IsGiven(const std::string& flag) const
    {
        const CLI::Option* const option = chosenApp_->get_option_no_throw(flag);
        return option != nullptr && option->count() > 0;
    }
    [[nodiscard]] std::vector<std::string> WordsOf(const Argument& argument) const
    {
        return options_.at(&argument)->results();
    }

private:
    void Declare(const Command& command, CLI::App& app)
    {
        app.set_help_flag();
        app.add_flag("-h," + std::string(kHelp));
        app.allow_extras();
        // More than one command would take positional arguments that are called like a command.
        app.require_subcommand(0, 1);
        for (const auto& argument : command.Arguments()) {
            CLI::Option* const option = argument->What() == Argument::Kind::Flag
                                            ? app.add_flag(argument->Name())
                                            : app.add_option(argument->Name());
            options_[argument.get()] = option;
            if (argument->What() == Argument::Kind::Flag) {
                continue;
            }
            option->type_name(argument->Placeholder());
            if (argument->IsRepeatable() && argument->What() == Argument::Kind::Positional) {
                option->expected(1, CLI::detail::expected_max_vector_size)->allow_extra_args();
            } else if (argument->IsRepeatable()) {
                option->expected(1)->allow_extra_args(false)->multi_option_policy(
                    CLI::MultiOptionPolicy::TakeAll);
            }
        }
        for (const auto& each : command.Commands()) {
            Declare(*each, *app.add_subcommand(each->Name()));
        }
    }

    /// The innermost command that was named.
    void Choose(const Command& command, const CLI::App& app)
    {
        chosen_ = &command;
        chosenApp_ = &app;
        for (const CLI::App* each : app.get_subcommands()) {
            Choose(*command.Find(each->get_name()), *each);
        }
    }

    CLI::App app_;
    std::map<const Argument*, CLI::Option*> options_;
    const Command* chosen_ = nullptr;
    const CLI::App* chosenApp_ = nullptr;
    std::string problem_;
};

[[noreturn]] void Refuse(const Command& command, const std::string& problem)
{
    throw Failure(problem + "; see \"" + command.FullName() + " --help\"", kUsage);
}

/// "; did you mean show?", or "".
std::string Suggestion(const std::string& typed, const std::vector<std::string>& names)
{
    const std::string nearest = NearestName(typed, names);
    return nearest.empty() ? nearest : "; did you mean " + nearest + "?";
}

[[noreturn]] void RefuseExtra(const Command& command, const std::string& word)
{
    if (!word.starts_with('-') || word.size() == 1) {
        Refuse(command, "\"" + word + "\" is one argument too many");
    }
    std::vector<std::string> names;
    for (const auto& each : command.Arguments()) {
        if (each->What() != Argument::Kind::Positional) {
            names.push_back(each->Name());
        }
    }
    const std::string name = word.substr(0, word.find('='));
    const std::string suggestion = Suggestion(name, names);
    if (suggestion.empty()) {
        Refuse(command, "there is no option " + name);
    }
    throw Failure("there is no option " + name + suggestion, kUsage);
}

/// A group was named, but none of its commands.
[[noreturn]] void RefuseGroup(const Command& group, const std::vector<std::string>& extras)
{
    std::vector<std::string> names;
    for (const auto& each : group.Commands()) {
        names.push_back(each->Name());
    }
    if (extras.empty()) {
        Refuse(group, "a command is missing: " + Joined(names, "or"));
    }
    if (extras.front().starts_with('-')) {
        RefuseExtra(group, extras.front());
    }
    const std::string suggestion = Suggestion(extras.front(), names);
    const std::string problem = "there is no command \"" + extras.front() + "\"";
    if (suggestion.empty()) {
        Refuse(group, problem + "; there are " + Joined(names));
    }
    throw Failure(problem + suggestion, kUsage);
}

void ReadArguments(const Command& command, const SplitWords& words)
{
    bool isWaived = false;
    for (const auto& argument : command.Arguments()) {
        const std::vector<std::string> given = words.WordsOf(*argument);
        if (const std::string problem = argument->Read(given); !problem.empty()) {
            const bool isOption = argument->Name().starts_with('-');
            Refuse(command, (isOption ? argument->Name() + ": " : std::string()) + problem);
        }
        isWaived = isWaived || (!given.empty() && argument->DoesWaiveRequired());
    }
    for (const auto& argument : command.Arguments()) {
        if (words.WordsOf(*argument).empty()) {
            if (argument->IsRequired() && !isWaived) {
                Refuse(command, Written(*argument) + " is missing");
            }
            continue;
        }
        for (const std::string& other : argument->Excluded()) {
            if (words.IsGiven(other)) {
                Refuse(command, argument->Name() + " and " + other + " exclude each other");
            }
        }
        if (const std::string& other = argument->Needed();
            !other.empty() && !words.IsGiven(other)) {
            Refuse(command, argument->Name() + " needs " + other);
        }
    }
}

}  // namespace

int RunCommandLine(const Command& program, int argc, const char* const* argv,
                   const std::string& version, const std::function<void()>& prepare)
{
    const SplitWords words(program, argc, argv);
    const Command& chosen = words.Chosen();
    if (words.IsGiven(kHelp)) {
        Print(HelpText(chosen));
        return kAnswered;
    }
    if (&chosen == &program && words.IsGiven(kHelpAll)) {
        Print(FullHelpText(program));
        return kAnswered;
    }
    if (&chosen == &program && words.IsGiven(kVersion)) {
        Print(version + "\n");
        return kAnswered;
    }
    if (!words.Problem().empty()) {
        Refuse(chosen, words.Problem());
    }
    const std::vector<std::string> extras = words.Extras();
    if (!chosen.Commands().empty()) {
        RefuseGroup(chosen, extras);
    }
    if (!extras.empty()) {
        RefuseExtra(chosen, extras.front());
    }
    ReadArguments(chosen, words);
    prepare();
    return chosen.Run();
}

}  // namespace Tool
