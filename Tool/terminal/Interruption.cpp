// What is still done when a signal ends the program.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Interruption.h"

#include <algorithm>
#include <array>
#include <cstring>

#include <unistd.h>

namespace Tool
{

namespace
{

// Those that end a program, but for crashes and SIGKILL. SIGPIPE is ignored throughout.
constexpr std::array kSignals{SIGHUP,  SIGINT,  SIGQUIT, SIGTERM,   SIGALRM, SIGUSR1,
                              SIGUSR2, SIGXCPU, SIGXFSZ, SIGVTALRM, SIGPROF};

// All that the handler can see. An empty text: there is nothing to do.
using Text = std::array<char, AtInterruption::kLongest + 1>;
std::array<Text, 3> texts{};

Text& TextOf(AtInterruption::Kind kind)
{
    return texts[static_cast<std::size_t>(kind)];
}

void Write(const Text& text)
{
    [[maybe_unused]] const ssize_t written =
        write(STDERR_FILENO, text.data(), std::strlen(text.data()));
}

void EndBySignal(int signal)
{
    Write(TextOf(AtInterruption::Kind::ClearLine));
    if (const Text& file = TextOf(AtInterruption::Kind::RemoveFile); file.front() != '\0') {
        unlink(file.data());
    }
    Write(TextOf(AtInterruption::Kind::Say));
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void Handle(void (*handler)(int))
{
    for (const int signal : kSignals) {
        if (std::signal(signal, handler) == SIG_IGN) {
            std::signal(signal, SIG_IGN);
        }
    }
}

}  // namespace

SignalsHeld::SignalsHeld()
{
    sigset_t held{};
    for (const int signal : kSignals) {
        sigaddset(&held, signal);
    }
    pthread_sigmask(SIG_BLOCK, &held, &former_);
}

SignalsHeld::~SignalsHeld()
{
    pthread_sigmask(SIG_SETMASK, &former_, nullptr);
}

AtInterruption::AtInterruption(Kind kind, std::string_view text) : kind_(kind)
{
    const SignalsHeld held;
    Text& kept = TextOf(kind);
    kept.fill('\0');
    text.copy(kept.data(), kLongest);
    Handle(EndBySignal);
}

AtInterruption::~AtInterruption()
{
    const SignalsHeld held;
    TextOf(kind_).front() = '\0';
    if (std::ranges::all_of(texts, [](const Text& text) { return text.front() == '\0'; })) {
        Handle(SIG_DFL);
    }
}

}  // namespace Tool
