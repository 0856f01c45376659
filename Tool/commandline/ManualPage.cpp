// Manual pages, made from what the commands declare.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/commandline/ManualPage.h"

#include "Tool/commandline/Help.h"

namespace Tool
{

namespace
{

/// Text that man shows as it is.
std::string Escaped(const std::string& text)
{
    std::string out;
    for (const char c : text) {
        if (c == '\\') {
            out += "\\e";
        } else if (c == '-') {
            out += "\\-";
        } else if ((c == '.' || c == '\'') && (out.empty() || out.back() == '\n')) {
            out += std::string("\\&") + c;
        } else {
            out += c;
        }
    }
    return out;
}

std::string UpperCase(std::string text)
{
    for (char& c : text) {
        c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
    return text;
}

/// "capset search" as "capset-search".
std::string PageName(const Command& command)
{
    std::string name = command.FullName();
    for (char& c : name) {
        c = c == ' ' ? '-' : c;
    }
    return name;
}

/// The usages of a command, or of all commands of a group.
std::string Synopsis(const Command& command)
{
    if (command.Commands().empty()) {
        return ".br\n" + Escaped(Usage(command)) + "\n";
    }
    std::string out;
    for (const auto& each : command.Commands()) {
        out += Synopsis(*each);
    }
    return out;
}

std::string Sections(const Command& command)
{
    std::string out;
    for (const HelpSection& section : HelpSections(command)) {
        out += ".PP\n" + Escaped(section.heading) + ":\n";
        for (const HelpEntry& entry : section.entries) {
            out += ".TP\n\\fB" + Escaped(entry.name) + "\\fR\n" + Escaped(entry.description) + "\n";
        }
    }
    if (!command.NoteText().empty()) {
        out += ".PP\n" + Escaped(command.NoteText()) + "\n";
    }
    return out;
}

std::string Examples(const Command& command)
{
    std::string out;
    for (const std::string& each : command.Examples()) {
        out += Escaped(each) + "\n";
    }
    for (const auto& each : command.Commands()) {
        out += each->Commands().empty() ? Examples(*each) : std::string();
    }
    return out;
}

}  // namespace

std::string ManualPage(const Command& command, const std::string& version, const std::string& more)
{
    const bool isProgram = command.FullName() == command.Name();
    const std::string name = PageName(command);
    std::string out = ".TH " + Escaped(UpperCase(name)) + " 1 \"\" \"" + Escaped(version) +
                      "\" \"User Commands\"\n.SH NAME\n" + Escaped(name) + " \\- " +
                      Escaped(command.Summary()) + "\n.SH SYNOPSIS\n" + Synopsis(command) +
                      ".SH DESCRIPTION\n" + Sections(command);
    for (const auto& each : command.Commands()) {
        if (!isProgram) {
            out += ".SH " + UpperCase(Escaped(each->FullName())) + "\n" + Escaped(each->Summary()) +
                   "\n" + Sections(*each);
        }
    }
    out += more + ".SH EXAMPLES\n.nf\n" + Examples(command) + ".fi\n.SH SEE ALSO\n";
    if (!isProgram) {
        return out + ".BR capset (1)\n";
    }
    std::string others;
    for (const auto& each : command.Commands()) {
        others += (others.empty() ? ".BR " : " ,\n.BR ") + Escaped(PageName(*each)) + " (1)";
    }
    return out + others + "\n";
}

}  // namespace Tool
