// Output to terminals, files and pipes.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace Tool
{

/// How a piece of text looks.
enum class Style
{
    Plain,
    Title,
    Section,
    Faint,
    Yes,
    No,
    Bad,
};

/// Colours texts, or leaves them as they are.
class Paint
{
public:
    explicit Paint(bool colours = false) : colours_(colours) {}

    [[nodiscard]] std::string operator()(Style style, std::string_view text) const;

private:
    bool colours_;
};

/// The values of --color.
enum class ColourChoice
{
    Auto,
    Always,
    Never,
};

/// True if output on the stream is coloured: with Auto on a terminal that has colours, unless
/// NO_COLOR is set.
bool WantsColours(ColourChoice choice, std::FILE* stream);

bool IsTerminal(std::FILE* stream);

/// Columns of the stream's terminal, or 80 if it is not one.
std::size_t TerminalWidth(std::FILE* stream);

/// Writes to stdout. False after an error; nothing more is written then.
bool Print(std::string_view text);

/// Flushes stdout. False if anything could not be written; except for a pipe without a reader, it
/// then writes a message.
bool FinishOutput();

/// Writes "capset: <message>" to stderr, with control characters escaped.
void Complain(std::string_view message);

}  // namespace Tool
