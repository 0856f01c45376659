// Tables of columns.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "Tool/terminal/Terminal.h"

namespace Tool
{

/// A short text in a table, safe to print.
struct Cell
{
    std::string text;
    Style style = Style::Plain;
    bool isNumber = false;
};

/// A table in which each row has one cell per column. The last column takes the rest of the width
/// and wraps; columns of numbers are aligned to the right.
class Grid
{
public:
    explicit Grid(std::vector<std::string> head) : head_(std::move(head)) {}

    void Add(std::vector<Cell> row) { rows_.push_back(std::move(row)); }

    /// Makes the grid fit into `width` columns: by splitting names of columns ("linkState") over
    /// lines, or else by moving the widest column to the end, where it wraps. False if it is still
    /// too wide.
    bool Fit(std::size_t width);

    [[nodiscard]] std::string Render(std::size_t indent, std::size_t width,
                                     const Paint& paint) const;

private:
    [[nodiscard]] std::vector<std::size_t> Widths() const;
    [[nodiscard]] bool IsNumeric(std::size_t column) const;

    [[nodiscard]] std::vector<std::vector<Cell>> HeadRows() const;

    std::vector<std::string> head_;  ///< all empty: no head is shown
    bool isHeadSplit_ = false;
    std::vector<std::vector<Cell>> rows_;
};

}  // namespace Tool
