// Where output goes: terminals with a width and perhaps colours, or files and pipes.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace Tool
{

/// How a piece of text is set.
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

/// Sets texts in colours, or leaves them as they are.
class Paint
{
public:
    explicit Paint(bool colours = false) : colours_(colours) {}

    [[nodiscard]] std::string operator()(Style style, std::string_view text) const;

private:
    bool colours_;
};

/// What "--color" says.
enum class ColourChoice
{
    Auto,
    Always,
    Never,
};

/// Whether output on that stream is coloured: under Auto on a terminal that knows colours, unless
/// NO_COLOR is set.
bool WantsColours(ColourChoice choice, std::FILE* stream);

bool IsTerminal(std::FILE* stream);

/// Columns of the terminal behind a stream, 80 where there is none.
std::size_t TerminalWidth(std::FILE* stream);

/// Writes to stdout. False once it can no longer be written to; nothing more is written then.
bool Print(std::string_view text);

/// Ends the output. False, after a message unless the reader merely went away, when something that
/// was printed did not arrive.
bool FinishOutput();

/// Writes "capset: <message>" to stderr, control characters made visible.
void Complain(std::string_view message);

}  // namespace Tool
