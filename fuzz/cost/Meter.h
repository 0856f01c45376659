// What a piece of work costs the thread that does it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace Cost
{

struct Spent
{
    double seconds = 0;        ///< CPU time of the thread
    std::size_t peak = 0;      ///< bytes of heap in use at most, beyond those before
    std::size_t logLines = 0;  ///< lines that reached the log
    std::size_t logBytes = 0;  ///< their text
};

/// Measures from its construction on. Only one may live at a time.
class Meter
{
public:
    Meter();
    [[nodiscard]] Spent Read() const;

private:
    double start_;
    std::size_t linesBefore_;
    std::size_t bytesBefore_;
};

/// Counts every log line from now on, at all levels; for the start of a program.
void CountLogLines();

}  // namespace Cost
