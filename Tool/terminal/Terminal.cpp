// Output to terminals, files and pipes.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Terminal.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <sys/ioctl.h>
#include <unistd.h>

#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

int outputError = 0;

const char* Code(Style style)
{
    switch (style) {
        case Style::Title:
            return "\033[1m";
        case Style::Section:
            return "\033[1;36m";
        case Style::Faint:
            return "\033[2m";
        case Style::Yes:
            return "\033[32m";
        case Style::No:
            return "\033[2m";
        case Style::Bad:
            return "\033[31m";
        case Style::Plain:
            break;
    }
    return "";
}

bool IsSet(const char* variable)
{
    const char* const value = std::getenv(variable);  // NOLINT(concurrency-mt-unsafe): never set
    return value != nullptr && *value != '\0';
}

}  // namespace

std::string Paint::operator()(Style style, std::string_view text) const
{
    if (!colours_ || style == Style::Plain || text.empty()) {
        return std::string(text);
    }
    return Code(style) + std::string(text) + "\033[0m";
}

bool WantsColours(ColourChoice choice, std::FILE* stream)
{
    if (choice != ColourChoice::Auto) {
        return choice == ColourChoice::Always;
    }
    const char* const kind = std::getenv("TERM");  // NOLINT(concurrency-mt-unsafe): never set
    const bool dumb = kind == nullptr || std::strcmp(kind, "dumb") == 0;
    return IsTerminal(stream) && !dumb && !IsSet("NO_COLOR");
}

bool IsTerminal(std::FILE* stream)
{
    return isatty(fileno(stream)) == 1;
}

std::size_t TerminalWidth(std::FILE* stream)
{
    constexpr std::size_t kUsual = 80;
    constexpr std::size_t kNarrowest = 20;
    winsize size{};
    if (ioctl(fileno(stream), TIOCGWINSZ, &size) != 0 || size.ws_col == 0) {
        return kUsual;
    }
    return std::max<std::size_t>(size.ws_col, kNarrowest);
}

bool Print(std::string_view text)
{
    if (outputError != 0) {
        return false;
    }
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) {
        outputError = errno == 0 ? EIO : errno;
    }
    return outputError == 0;
}

bool FinishOutput()
{
    if (outputError == 0 && std::fflush(stdout) != 0) {
        outputError = errno == 0 ? EIO : errno;
    }
    if (outputError != 0 && outputError != EPIPE) {
        Complain("cannot write the output: " + std::string(std::strerror(outputError)));
        return false;
    }
    return true;
}

void Complain(std::string_view message)
{
    const std::string line = "capset: " + Harmless(message, true) + "\n";
    std::fwrite(line.data(), 1, line.size(), stderr);
}

}  // namespace Tool
