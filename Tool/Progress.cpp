// A line on the terminal while something takes its time.
// SPDX-License-Identifier: Apache-2.0
#include "Progress.h"

#include <array>
#include <cstdio>

#include "Terminal.h"
#include "Text.h"

namespace Tool
{

Progress::Progress(std::string what) : what_(Harmless(what))
{
    if (IsTerminal(stderr)) {
        thread_ = std::thread([this] { Run(); });
    }
}

Progress::~Progress()
{
    if (thread_.joinable()) {
        {
            const std::lock_guard lock(mutex_);
            isEnding_ = true;
        }
        ended_.notify_all();
        thread_.join();
    }
}

void Progress::Say(const std::string& what)
{
    const std::lock_guard lock(mutex_);
    what_ = Harmless(what);
}

void Progress::Run()
{
    using namespace std::chrono_literals;
    constexpr std::array kTurns{"⠋", "⠙", "⠹", "⠸", "⠼", "⠴", "⠦", "⠧", "⠇", "⠏"};
    std::unique_lock lock(mutex_);
    std::chrono::milliseconds pause = 1s;
    std::size_t turn = 0;
    while (!ended_.wait_for(lock, pause, [this] { return isEnding_; })) {
        pause = 100ms;
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
            std::chrono::steady_clock::now() - start_);
        const std::string time = std::to_string(seconds.count()) + " s";
        const std::size_t room = TerminalWidth(stderr) - time.size() - 4;
        const std::string line = std::string(kTurns[turn++ % kTurns.size()]) + " " +
                                 Wrap(what_, room).front() + " " + time;
        std::fprintf(stderr, "\r%s\033[K", line.c_str());
        std::fflush(stderr);
    }
    if (turn > 0) {
        std::fputs("\r\033[K", stderr);
        std::fflush(stderr);
    }
}

}  // namespace Tool
