// A line on the terminal while something takes its time.
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

/// How far something is that takes its time.
struct ProgressState
{
    std::string what;              ///< "search people at sim:recorder"
    std::string step = {};         ///< what goes on of it: "downloading"
    int percent = -1;              ///< of the step, -1: nobody knows
    std::uint64_t received = 0;    ///< bytes of an answer so far, 0: not worth telling
    std::uint64_t total = 0;       ///< of it in all, 0: nobody knows
    double bytesPerSecond = 0;     ///< of late
    std::chrono::seconds time{0};  ///< since the beginning
};

/// As much of the state as fits one line of so many columns, with a bar where there is room.
std::string ProgressLine(const ProgressState& state, std::size_t width);

/// Shows on stderr, when that is a terminal, what is going on, how far and for how long, as soon as
/// it takes longer than a second; the line is gone when the object is, and when a signal ends the
/// program.
class Progress
{
public:
    explicit Progress(std::string what);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// What goes on from now on, and if one knows, how far it is.
    void Say(const std::string& step, int percent = -1);
    /// How much of an answer has come. Answers that are small enough to come at once do not count.
    void Receive(std::uint64_t received, std::uint64_t total);

private:
    using Clock = std::chrono::steady_clock;

    void Run();

    ProgressState state_;
    const Clock::time_point start_ = Clock::now();
    Clock::time_point receiveStart_;
    std::optional<AtInterruption> clearing_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool isEnding_ = false;
    std::thread thread_;
};

}  // namespace Tool
