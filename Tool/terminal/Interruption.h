// What is still done when a signal ends the program.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>
#include <string_view>

namespace Tool
{

/// Holds back, on the calling thread, the signals that end the program: SIGHUP, SIGINT, SIGQUIT,
/// SIGTERM, SIGALRM, SIGUSR1, SIGUSR2, SIGXCPU, SIGXFSZ, SIGVTALRM and SIGPROF. One that comes
/// meanwhile is delivered when the object goes.
class SignalsHeld
{
public:
    SignalsHeld();
    ~SignalsHeld();
    SignalsHeld(const SignalsHeld&) = delete;
    SignalsHeld& operator=(const SignalsHeld&) = delete;

private:
    sigset_t former_{};
};

/// Something that is done when one of these signals ends the program while the object lives; the
/// program still ends by the signal. One object of each kind at a time, all on the main thread,
/// which is the only one that takes these signals. Signals that were ignored when the program
/// started stay ignored.
class AtInterruption
{
public:
    /// In this order.
    enum class Kind
    {
        ClearLine,   ///< writes the text, which clears a line, to stderr
        RemoveFile,  ///< removes the file with that name
        Say,         ///< writes the text to stderr
    };
    static constexpr std::size_t kLongest = 4095;  ///< longer texts are cut

    AtInterruption(Kind kind, std::string_view text);
    ~AtInterruption();
    AtInterruption(const AtInterruption&) = delete;
    AtInterruption& operator=(const AtInterruption&) = delete;

private:
    const Kind kind_;
};

}  // namespace Tool
