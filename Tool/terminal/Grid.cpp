// Tables of columns.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Grid.h"

#include <algorithm>
#include <numeric>

#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

constexpr std::size_t kGap = 2;
constexpr std::size_t kLeastLastColumn = 16;

/// One row, of as many lines as its last cell needs.
std::string RenderRow(const std::vector<Cell>& row, const std::vector<std::size_t>& widths,
                      const std::vector<bool>& numeric, std::size_t indent, const Paint& paint)
{
    const std::size_t last = row.size() - 1;
    std::string line(indent, ' ');
    std::size_t column = indent;
    for (std::size_t i = 0; i < last; ++i) {
        const std::size_t blanks = widths[i] - std::min(widths[i], Width(row[i].text));
        const std::string space(blanks, ' ');
        const std::string text = paint(row[i].style, row[i].text);
        line += (numeric[i] ? space + text : text + space) + std::string(kGap, ' ');
        column += widths[i] + kGap;
    }
    const std::vector<std::string> pieces = Wrap(row[last].text, widths[last]);
    std::string out;
    for (const std::string& piece : pieces) {
        const bool shifted = numeric[last] && pieces.size() == 1;
        const std::string space(shifted ? widths[last] - std::min(widths[last], Width(piece)) : 0,
                                ' ');
        std::string whole = line + space + paint(row[last].style, piece);
        whole.erase(whole.find_last_not_of(' ') + 1);
        out += whole + "\n";
        line.assign(column, ' ');
    }
    return out;
}

/// "linkState" as "link" and "State".
std::vector<std::string> Words(const std::string& name)
{
    const auto isLower = [](char c) { return c >= 'a' && c <= 'z'; };
    const auto isUpper = [](char c) { return c >= 'A' && c <= 'Z'; };
    std::vector<std::string> words(1);
    for (const char c : name) {
        if (!words.back().empty() && isLower(words.back().back()) && isUpper(c)) {
            words.emplace_back();
        }
        words.back() += c;
    }
    return words;
}

}  // namespace

std::vector<std::vector<Cell>> Grid::HeadRows() const
{
    std::vector<std::vector<std::string>> columns;
    std::size_t lines = 1;
    for (const std::string& name : head_) {
        columns.push_back(isHeadSplit_ ? Words(name) : std::vector{name});
        lines = std::max(lines, columns.back().size());
    }
    std::vector<std::vector<Cell>> rows(lines);
    for (const std::vector<std::string>& words : columns) {
        const std::size_t blank = lines - words.size();
        for (std::size_t i = 0; i < lines; ++i) {
            rows[i].push_back({i < blank ? std::string() : words[i - blank], Style::Faint});
        }
    }
    return rows;
}

std::vector<std::size_t> Grid::Widths() const
{
    std::vector<std::size_t> widths(head_.size());
    const auto widen = [&widths](const std::vector<Cell>& row) {
        for (std::size_t i = 0; i < widths.size(); ++i) {
            widths[i] = std::max(widths[i], Width(row[i].text));
        }
    };
    std::ranges::for_each(HeadRows(), widen);
    std::ranges::for_each(rows_, widen);
    return widths;
}

bool Grid::IsNumeric(std::size_t column) const
{
    return std::ranges::all_of(rows_,
                               [column](const std::vector<Cell>& row) {
                                   return row[column].isNumber || row[column].style == Style::Faint;
                               }) &&
           std::ranges::any_of(rows_, [column](const auto& row) { return row[column].isNumber; });
}

bool Grid::Fit(std::size_t width)
{
    // Narrower texts are hard to read.
    constexpr std::size_t kReadable = 24;
    const auto sum = [](const std::vector<std::size_t>& widths) {
        return std::accumulate(widths.begin(), widths.end(), std::size_t{0}) +
               kGap * (widths.size() - 1);
    };
    for (const bool isSplit : {false, true}) {
        isHeadSplit_ = isSplit;
        if (sum(Widths()) <= width) {
            return true;
        }
    }
    const std::vector<std::size_t> widths = Widths();
    const std::size_t natural = sum(widths);
    const auto widest = std::ranges::max_element(widths) - widths.begin();
    const auto moveToEnd = [widest](auto& row) {
        std::rotate(row.begin() + widest, row.begin() + widest + 1, row.end());
    };
    moveToEnd(head_);
    std::ranges::for_each(rows_, moveToEnd);
    const std::size_t most = widths[static_cast<std::size_t>(widest)];
    return natural - most + std::min(most, kReadable) <= width;
}

std::string Grid::Render(std::size_t indent, std::size_t width, const Paint& paint) const
{
    std::vector<std::size_t> widths = Widths();
    std::size_t before = indent;
    std::vector<bool> numeric;
    for (std::size_t i = 0; i < widths.size(); ++i) {
        numeric.push_back(IsNumeric(i));
        before += i + 1 < widths.size() ? widths[i] + kGap : 0;
    }
    const std::size_t left = width > before ? width - before : 0;
    widths.back() = std::min(widths.back(), std::max(left, kLeastLastColumn));
    std::string out;
    if (std::ranges::any_of(head_, [](const std::string& each) { return !each.empty(); })) {
        for (const std::vector<Cell>& row : HeadRows()) {
            out += RenderRow(row, widths, numeric, indent, paint);
        }
    }
    for (const std::vector<Cell>& row : rows_) {
        out += RenderRow(row, widths, numeric, indent, paint);
    }
    return out;
}

}  // namespace Tool
