// Texts on a terminal: widths in columns, escaping, wrapping, similar names.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Tool
{

/// Makes the functions below read UTF-8, whatever the user's locale. To be called once, before any
/// of them.
void UseUtf8Widths();

/// True if the user's locale is a UTF-8 one, as far as UseUtf8Widths found.
bool IsUtf8Wanted();

/// The text with everything escaped that could make a terminal do more than show characters:
/// control characters, marks that change the direction of writing, bytes that are not UTF-8. With
/// `keepLines`, line feeds and tabs stay.
std::string Harmless(std::string_view text, bool keepLines = false);

/// Columns that an escaped text takes.
std::size_t Width(std::string_view text);

/// True if the bytes are UTF-8 without NULs.
bool IsText(std::string_view bytes);

/// Splits a text into lines of at most `width` columns, at blanks if possible. There is at least
/// one line, and at least one character in each.
std::vector<std::string> Wrap(std::string_view text, std::size_t width);

/// The text filled with blanks to `width` columns.
std::string Padded(std::string text, std::size_t width);

std::string Trimmed(std::string_view text);

/// True if the texts differ only in the case of ASCII letters.
bool SameIgnoringCase(std::string_view a, std::string_view b);

/// The candidate that a mistyped name most likely means; empty if none is similar.
std::string NearestName(std::string_view typed, std::span<const std::string> candidates);

/// "a, b and c", or with another word before the last.
std::string Joined(std::span<const std::string> texts, std::string_view lastWord = "and");

/// "a, b, c".
std::string Listed(std::span<const std::string> texts);

/// "1 record", "2 records".
std::string Counted(std::size_t count, const std::string& noun);

}  // namespace Tool
