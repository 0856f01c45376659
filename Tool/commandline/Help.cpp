// Help texts, made from what the commands declare.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/commandline/Help.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "Tool/Failure.h"
#include "Tool/terminal/Terminal.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

using Kind = Argument::Kind;

std::string UpperCase(std::string text)
{
    for (char& c : text) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return text;
}

HelpSection& SectionOf(std::vector<HelpSection>& sections, const std::string& heading)
{
    const auto found = std::ranges::find(sections, heading, &HelpSection::heading);
    return found == sections.end() ? sections.emplace_back(HelpSection{heading, {}}) : *found;
}

std::string Paragraph(const std::string& text, std::size_t width)
{
    std::string out;
    for (const std::string& line : Wrap(text, width)) {
        out += line + "\n";
    }
    return out;
}

std::string Render(const HelpSection& section, std::size_t column, std::size_t width)
{
    std::string out = "\n" + section.heading + ":\n";
    for (const HelpEntry& entry : section.entries) {
        std::string line = "  " + entry.name;
        if (line.size() + 2 > column) {
            out += line + "\n";
            line.clear();
        }
        for (const std::string& piece : Wrap(entry.description, width - column)) {
            out += Padded(line, column) + piece + "\n";
            line.clear();
        }
    }
    return out;
}

}  // namespace

std::vector<HelpSection> HelpSections(const Command& command)
{
    std::vector<HelpSection> sections;
    for (const auto& each : command.Commands()) {
        SectionOf(sections, "Commands").entries.push_back({each->Name(), each->Summary()});
    }
    for (const auto& each : command.Arguments()) {
        const bool isPositional = each->What() == Kind::Positional;
        const std::string heading = each->Heading().empty() ? "Options" : each->Heading();
        SectionOf(sections, isPositional ? "Arguments" : heading)
            .entries.push_back(
                {isPositional ? UpperCase(each->Name()) : Written(*each), each->Description()});
    }
    // What a command shares with others comes after what is its own.
    std::ranges::stable_partition(sections, [](const HelpSection& each) {
        return each.heading != "Connection" && each.heading != "Output";
    });
    std::vector<HelpEntry>& options = SectionOf(sections, "Options").entries;
    options.push_back({"-h, --help", "print this help"});
    if (command.FullName() == command.Name()) {
        options.push_back({"--help-all", "print the help of all commands"});
        options.push_back({"--version", "print the version"});
    }
    return sections;
}

std::string Usage(const Command& command)
{
    std::string usage = command.FullName();
    std::string positional;
    for (const auto& each : command.Arguments()) {
        if (each->What() == Kind::Positional) {
            positional += " " + Written(*each);
        } else if (each->IsRequired()) {
            usage += " " + Written(*each);
        }
    }
    return usage + " [OPTIONS]" + (command.Commands().empty() ? positional : " COMMAND");
}

std::string Written(const Argument& argument)
{
    std::string text = argument.Name();
    if (argument.What() == Kind::Option) {
        text += " " + argument.Placeholder();
    } else if (argument.What() == Kind::Positional) {
        text = UpperCase(text) + (argument.IsRepeatable() ? "..." : "");
        text = argument.IsRequired() ? text : "[" + text + "]";
    }
    return text;
}

std::string HelpText(const Command& command)
{
    // Long lines are hard to read, however wide the terminal is.
    constexpr std::size_t kWidest = 100;
    constexpr std::size_t kWidestName = 26;
    const std::size_t width = std::min(TerminalWidth(stdout), kWidest);
    const std::vector<HelpSection> sections = HelpSections(command);
    std::size_t column = 0;
    for (const HelpSection& section : sections) {
        for (const HelpEntry& entry : section.entries) {
            if (entry.name.size() <= kWidestName) {
                column = std::max(column, entry.name.size() + 4);
            }
        }
    }
    column = std::min(column, width / 2);
    std::string text = "Usage: " + Usage(command) + "\n\n" + Paragraph(command.Summary(), width);
    for (const HelpSection& section : sections) {
        text += Render(section, column, width);
    }
    if (!command.NoteText().empty()) {
        text += "\n" + Paragraph(command.NoteText(), width);
    }
    if (!command.Examples().empty()) {
        text += command.Examples().size() == 1 ? "\nExample:\n" : "\nExamples:\n";
        for (const std::string& each : command.Examples()) {
            text += "  " + each + "\n";
        }
    }
    return text;
}

std::string FullHelpText(const Command& program)
{
    std::string text = HelpText(program);
    for (const auto& each : program.Commands()) {
        text += "\n\n" + FullHelpText(*each);
    }
    return text;
}

void AddHelpCommand(Command& program)
{
    Command& command = program.Add("help", "Explain a command");
    command.Example("capset help search content");
    const auto words = std::make_shared<std::vector<std::string>>();
    command.Positional("command", *words, "a command's words; none: the program itself");
    command.SetAction([&program, words]() -> int {
        const Command* found = &program;
        for (const std::string& word : *words) {
            const Command* const next = found->Find(word);
            if (next == nullptr) {
                throw Failure("there is no command \"" + Joined(*words, "") + "\"; see \"" +
                                  found->FullName() + " --help\"",
                              kUsage);
            }
            found = next;
        }
        Print(HelpText(*found));
        return kAnswered;
    });
}

}  // namespace Tool
