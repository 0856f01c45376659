// A line on the terminal during lengthy operations.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Progress.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "Tool/terminal/Terminal.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

constexpr const char* kClearToEnd = "\033[K";

struct GlyphSet
{
    const char* full;
    const char* half;
    const char* empty;
    std::vector<const char*> turns;
};

const GlyphSet& SetOf(Glyphs glyphs)
{
    static const GlyphSet ascii{"#", "-", ".", {"|", "/", "-", "\\"}};
    static const GlyphSet unicode{
        "━", "╸", "┄", {"⠋", "⠙", "⠹", "⠸", "⠼", "⠴", "⠦", "⠧", "⠇", "⠏"}};
    return glyphs == Glyphs::Ascii ? ascii : unicode;
}

std::string Bar(double share, std::size_t cells, Glyphs glyphs)
{
    if (share < 0) {
        return {};
    }
    const GlyphSet& set = SetOf(glyphs);
    const auto halves = static_cast<std::size_t>(share * static_cast<double>(2 * cells));
    std::string bar;
    for (std::size_t cell = 0; cell < cells; ++cell) {
        bar += 2 * cell + 1 < halves ? set.full : 2 * cell < halves ? set.half : set.empty;
    }
    return bar;
}

std::string Mebibytes(double bytes)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.1f", bytes / (1 << 20));
    return text.data();
}

/// "24.1 of 50.0 MiB", "62 %"; empty if not known.
std::string Amount(const ProgressState& state)
{
    if (state.received > 0) {
        const std::string received = Mebibytes(static_cast<double>(state.received));
        return received +
               (state.total > 0 ? " of " + Mebibytes(static_cast<double>(state.total)) : "") +
               " MiB";
    }
    return state.percent < 0 ? std::string() : std::to_string(state.percent) + " %";
}

/// From 0 to 1; negative if not known.
double Share(const ProgressState& state)
{
    if (state.received > 0) {
        return state.total == 0 ? -1
                                : std::min(1.0, static_cast<double>(state.received) /
                                                    static_cast<double>(state.total));
    }
    return state.percent < 0 ? -1 : std::min(state.percent, 100) / 100.0;
}

}  // namespace

std::string ProgressLine(const ProgressState& state, std::size_t width, Glyphs glyphs)
{
    const std::string step = state.step.empty() ? state.what : state.step;
    const std::string whole = state.step.empty() ? state.what : state.what + ": " + state.step;
    const std::string amount = Amount(state);
    const std::string speed = state.received > 0 && state.bytesPerSecond > 0
                                  ? Mebibytes(state.bytesPerSecond) + " MiB/s"
                                  : std::string();
    const std::string time = std::to_string(state.time.count()) + " s";
    const std::string wide = Bar(Share(state), 30, glyphs);
    const std::string narrow = Bar(Share(state), 12, glyphs);
    const std::array<std::array<std::string, 5>, 6> forms{{
        {whole, wide, amount, speed, time},
        {whole, narrow, amount, speed, time},
        {whole, narrow, amount, "", time},
        {step, narrow, amount, "", time},
        {step, "", amount, "", time},
        {Wrap(step, width > time.size() + 2 ? width - time.size() - 2 : 1).front(), "", "", "",
         time},
    }};
    std::string line;
    for (const auto& form : forms) {
        line.clear();
        for (const std::string& part : form) {
            line += (line.empty() || part.empty() ? "" : "  ") + part;
        }
        if (Width(line) <= width) {
            break;
        }
    }
    return line;
}

Progress::Progress(std::string what)
{
    state_.what = Harmless(what);
    if (IsTerminal(stderr)) {
        clearing_.emplace(AtInterruption::Kind::ClearLine, std::string("\r") + kClearToEnd);
        // Only the main thread takes signals.
        const SignalsHeld held;
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

void Progress::Say(const std::string& step, int percent)
{
    const std::lock_guard lock(mutex_);
    state_.step = Harmless(step);
    state_.percent = percent;
    state_.received = 0;
}

void Progress::Receive(std::uint64_t received, std::uint64_t total)
{
    constexpr std::uint64_t kLarge = 256 * 1024;
    const std::lock_guard lock(mutex_);
    if (received < state_.received || state_.received == 0) {
        receiveStart_ = Clock::now();
    }
    const std::chrono::duration<double> time = Clock::now() - receiveStart_;
    const bool isLarge = std::max(received, total) >= kLarge;
    state_.received = isLarge ? received : 0;
    state_.total = total;
    state_.bytesPerSecond = time.count() > 0.5 ? static_cast<double>(received) / time.count() : 0.0;
}

void Progress::Clear()
{
    const std::lock_guard lock(mutex_);
    if (isShown_) {
        std::fprintf(stderr, "\r%s", kClearToEnd);
        std::fflush(stderr);
        isShown_ = false;
    }
}

void Progress::Run()
{
    using namespace std::chrono_literals;
    const Glyphs glyphs = IsUtf8Wanted() ? Glyphs::Unicode : Glyphs::Ascii;
    const auto& turns = SetOf(glyphs).turns;
    std::unique_lock lock(mutex_);
    std::chrono::milliseconds pause = 1s;
    std::size_t turn = 0;
    while (!ended_.wait_for(lock, pause, [this] { return isEnding_; })) {
        pause = 100ms;
        state_.time = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - start_);
        // Leave room for the "^C" that some terminals print.
        constexpr std::size_t kReserved = 5;
        const std::string line = std::string(turns[turn++ % turns.size()]) + " " +
                                 ProgressLine(state_, TerminalWidth(stderr) - kReserved, glyphs);
        std::fprintf(stderr, "\r%s%s", line.c_str(), kClearToEnd);
        std::fflush(stderr);
        isShown_ = true;
    }
    if (isShown_) {
        std::fprintf(stderr, "\r%s", kClearToEnd);
        std::fflush(stderr);
    }
}

}  // namespace Tool
