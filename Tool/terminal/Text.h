// Texts as people see them: widths in columns, harmless characters, wrapping, near misses.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tool
{

/// Prepares the character widths for UTF-8 whatever the user's locale; numbers stay as they are.
/// Called once, before any other function here.
void UseUtf8Widths();

/// The text with everything that could steer a terminal made visible: control characters, marks
/// that change the direction of writing, and bytes that are no UTF-8. With `keepLines` line feeds
/// and tabs stay.
std::string Harmless(std::string_view text, bool keepLines = false);

/// Columns that a harmless text takes.
std::size_t Width(std::string_view text);

/// Whether the text is UTF-8 without NULs.
bool IsText(std::string_view bytes);

/// Cuts a text into lines of at most `width` columns, at blanks where there are any. There is
/// always one line, and always at least one character in each.
std::vector<std::string> Wrap(std::string_view text, std::size_t width);

/// Blanks up to a column.
std::string Padded(std::string text, std::size_t width);

std::string Trimmed(std::string_view text);

/// Whether two names differ in nothing but the case of ASCII letters.
bool SameIgnoringCase(std::string_view a, std::string_view b);

/// The candidate that a mistyped name most likely means; empty when none is near.
std::string NearestName(std::string_view typed, std::span<const std::string> candidates);

/// "a, b and c" or with another word before the last.
std::string Joined(std::span<const std::string> texts, std::string_view lastWord = "and");

/// "a, b, c".
std::string Listed(std::span<const std::string> texts);

/// "1 record", "2 records".
std::string Counted(std::size_t count, const std::string& noun);

}  // namespace Tool
