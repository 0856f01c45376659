// A line on the terminal during lengthy operations.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "Tool/terminal/Interruption.h"

namespace Tool
{

/// How far a lengthy operation is.
struct ProgressState
{
    std::string what;              ///< "search people at sim:recorder"
    std::string step = {};         ///< the current step: "downloading"
    int percent = -1;              ///< of the step, -1: not known
    std::uint64_t received = 0;    ///< bytes of an answer so far, 0: too few to mention
    std::uint64_t total = 0;       ///< bytes of the whole answer, 0: not known
    double bytesPerSecond = 0;     ///< 0: not known
    std::chrono::seconds time{0};  ///< since the start
};

/// The characters of bars and spinners.
enum class Glyphs
{
    Ascii,
    Unicode,
};

/// As much of the state as fits in one line of `width` columns, with a bar if there is room.
std::string ProgressLine(const ProgressState& state, std::size_t width,
                         Glyphs glyphs = Glyphs::Unicode);

/// A line on stderr, if that is a terminal, with what is going on, how far and for how long. It
/// appears after a second, and goes with the object and when a signal ends the program.
class Progress
{
public:
    explicit Progress(std::string what);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// Sets the current step and, if known, how far it is.
    void Say(const std::string& step, int percent = -1);
    /// Sets how much of an answer has arrived. Small answers are not mentioned.
    void Receive(std::uint64_t received, std::uint64_t total);
    /// Removes the line for the moment, so that something else can be printed.
    void Clear();

private:
    using Clock = std::chrono::steady_clock;

    void Run();

    ProgressState state_;
    const Clock::time_point start_ = Clock::now();
    Clock::time_point receiveStart_;
    std::optional<AtInterruption> clearing_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool isShown_ = false;
    bool isEnding_ = false;
    std::thread thread_;
};

}  // namespace Tool
