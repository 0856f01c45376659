// Texts on a terminal.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Text.h"

#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <numeric>
#include <utility>

#include <langinfo.h>

namespace Tool
{

namespace
{

/// One character of a text, or one byte that is not part of any.
struct Character
{
    std::string_view bytes;
    wchar_t code = 0;
    bool valid = false;
};

Character First(std::string_view text)
{
    // The common case. It also works without a UTF-8 locale.
    if (static_cast<unsigned char>(text.front()) < 0x80) {
        return {text.substr(0, 1), static_cast<wchar_t>(text.front()), true};
    }
    std::mbstate_t state{};
    wchar_t code = 0;
    const std::size_t length = std::mbrtowc(&code, text.data(), text.size(), &state);
    if (length == 0 || length > text.size()) {
        return {text.substr(0, 1), 0, false};
    }
    return {text.substr(0, length), code, true};
}

/// Marks that change the direction of writing can make a text look like another one.
bool TurnsDirection(wchar_t code)
{
    return code == 0x061C || code == 0x200E || code == 0x200F ||
           (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

int Columns(const Character& character)
{
    return !character.valid || TurnsDirection(character.code) ? -1 : wcwidth(character.code);
}

void AppendHex(std::string& out, unsigned long value, int digits)
{
    constexpr char kDigits[] = "0123456789ABCDEF";
    for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) {
        out += kDigits[(value >> shift) & 15];
    }
}

void AppendEscaped(std::string& out, const Character& character)
{
    if (!character.valid) {
        out += "\\x";
        AppendHex(out, static_cast<unsigned char>(character.bytes.front()), 2);
        return;
    }
    switch (character.code) {
        case L'\n':
            out += "\\n";
            break;
        case L'\r':
            out += "\\r";
            break;
        case L'\t':
            out += "\\t";
            break;
        default:
            out += "\\u";
            AppendHex(out, static_cast<unsigned long>(character.code),
                      character.code > 0xFFFF ? 8 : 4);
    }
}

char Lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// The number of letters to insert, drop, replace or swap to turn one name into the other.
std::size_t Distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> before(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        std::vector<std::size_t> next(b.size() + 1);
        next[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool same = Lower(a[i - 1]) == Lower(b[j - 1]);
            next[j] = std::min({row[j] + 1, next[j - 1] + 1, row[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && Lower(a[i - 1]) == Lower(b[j - 2]) &&
                Lower(a[i - 2]) == Lower(b[j - 1])) {
                next[j] = std::min(next[j], before[j - 2] + 1);
            }
        }
        before = std::exchange(row, std::move(next));
    }
    return row.back();
}

bool isUtf8Wanted = false;

bool ContainsIgnoringCase(std::string_view whole, std::string_view part)
{
    return !std::ranges::search(whole, part, {}, Lower, Lower).empty();
}

}  // namespace

void UseUtf8Widths()
{
    if (std::setlocale(LC_CTYPE, "") != nullptr) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): there are no threads yet
        isUtf8Wanted = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
    }
    if (std::setlocale(LC_CTYPE, "C.UTF-8") == nullptr) {
        std::setlocale(LC_CTYPE, "");
    }
}

bool IsUtf8Wanted()
{
    return isUtf8Wanted;
}

std::string Harmless(std::string_view text, bool keepLines)
{
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const Character character = First(text);
        text.remove_prefix(character.bytes.size());
        const bool kept = keepLines && (character.code == L'\n' || character.code == L'\t');
        if ((character.valid && kept) || (character.code != 0 && Columns(character) >= 0)) {
            out += character.bytes;
        } else {
            AppendEscaped(out, character);
        }
    }
    return out;
}

std::size_t Width(std::string_view text)
{
    std::size_t width = 0;
    while (!text.empty()) {
        const Character character = First(text);
        text.remove_prefix(character.bytes.size());
        width += static_cast<std::size_t>(std::max(Columns(character), 0));
    }
    return width;
}

bool IsText(std::string_view bytes)
{
    while (!bytes.empty()) {
        const Character character = First(bytes);
        if (!character.valid || character.code == 0) {
            return false;
        }
        bytes.remove_prefix(character.bytes.size());
    }
    return true;
}

std::vector<std::string> Wrap(std::string_view text, std::size_t width)
{
    std::vector<std::string> lines;
    while (true) {
        std::size_t columns = 0;
        std::size_t end = 0;
        std::size_t blank = 0;  // where the line can end, 0: nowhere
        while (end < text.size()) {
            const Character next = First(text.substr(end));
            if (next.code == L' ') {
                blank = end;
            }
            columns += static_cast<std::size_t>(std::max(Columns(next), 0));
            if (columns > width && end > 0) {
                break;
            }
            end += next.bytes.size();
        }
        if (end == text.size()) {
            lines.emplace_back(text);
            return lines;
        }
        const std::size_t cut = blank > 0 ? blank : end;
        lines.emplace_back(text.substr(0, cut));
        text.remove_prefix(blank > 0 ? cut + 1 : cut);
    }
}

std::string Padded(std::string text, std::size_t width)
{
    const std::size_t columns = Width(text);
    if (columns < width) {
        text.append(width - columns, ' ');
    }
    return text;
}

std::string Trimmed(std::string_view text)
{
    constexpr std::string_view kBlanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(first, text.find_last_not_of(kBlanks) - first + 1));
}

bool SameIgnoringCase(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, Lower, Lower);
}

std::string NearestName(std::string_view typed, std::span<const std::string> candidates)
{
    std::string nearest;
    // With more than a third of the letters wrong, it is another name.
    std::size_t least = std::max<std::size_t>(typed.size() / 3, 1) + 1;
    for (const std::string& candidate : candidates) {
        const std::size_t distance = Distance(typed, candidate);
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    // "ptz" means the shortest name that contains it.
    if (nearest.empty() && typed.size() >= 3) {
        for (const std::string& candidate : candidates) {
            if (ContainsIgnoringCase(candidate, typed) &&
                (nearest.empty() || candidate.size() < nearest.size())) {
                nearest = candidate;
            }
        }
    }
    return nearest;
}

std::string Joined(std::span<const std::string> texts, std::string_view lastWord)
{
    std::string all;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (i > 0 && i + 1 < texts.size()) {
            all += ", ";
        } else if (i > 0) {
            all.append(" ").append(lastWord).append(" ");
        }
        all += texts[i];
    }
    return all;
}

std::string Listed(std::span<const std::string> texts)
{
    std::string all;
    for (const std::string& text : texts) {
        all.append(all.empty() ? "" : ", ").append(text);
    }
    return all;
}

std::string Counted(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace Tool
