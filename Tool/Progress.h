// A line on the terminal while something takes its time.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace Tool
{

/// Shows on stderr, when that is a terminal, what is going on and for how long, as soon as it takes
/// longer than a second; the line is gone when the object is.
class Progress
{
public:
    explicit Progress(std::string what);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// What goes on from now on.
    void Say(const std::string& what);

private:
    void Run();

    std::string what_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::mutex mutex_;
    std::condition_variable ended_;
    bool isEnding_ = false;
    std::thread thread_;
};

}  // namespace Tool
