// Inputs of any size that repeat a few pieces, which is nearly always what makes a reader slow.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace Cost
{

/// Stands for the number of the repetition, so that each one can differ from the others.
inline constexpr char kCounter = '\x1f';

/// A piece that is repeated: all openings, then as many closings, which nests them.
struct Repeat
{
    std::string open;
    std::string close = {};
    unsigned weight = 1;  ///< share of the input, relative to the other repeats
};

/// An input without its size.
struct Shape
{
    std::string head;
    std::vector<Repeat> repeats;
    std::string tail;

    /// The input with as many repetitions as fit into `size` bytes, each at least once.
    [[nodiscard]] std::string Text(std::size_t size) const;
};

using Random = std::mt19937_64;

/// A shape that differs from `shape` in one to four places. Pieces come from `words` and `others`,
/// neither of which may be empty.
Shape Mutated(const Shape& shape, const std::vector<std::string>& words,
              const std::vector<Shape>& others, Random& random);

/// A document with one of its elements, or one entry of its arrays, repeated.
std::vector<Shape> RepeatedParts(const std::string& document);

}  // namespace Cost
