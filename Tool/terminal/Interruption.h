// What is still done when SIGINT, SIGTERM or SIGHUP ends the program.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <csignal>
#include <string_view>

namespace Tool
{

/// Keeps these signals from the calling thread; one that came meanwhile strikes at the end.
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

/// A thing that is done, as long as the object lives, when one of these signals ends the program,
/// which then ends by it as it would without. One object of each kind at a time; all of them live
/// on the main thread, the only one that takes these signals. A signal that the program was started
/// to ignore stays ignored.
class AtInterruption
{
public:
    /// In the order in which they are done.
    enum class Kind
    {
        ClearLine,   ///< writes the text, which clears a line of the terminal, to stderr
        RemoveFile,  ///< removes the file of that name
        Say,         ///< writes the text to stderr
    };
    static constexpr std::size_t kLongest = 4095;  ///< of a text, which is cut there

    AtInterruption(Kind kind, std::string_view text);
    ~AtInterruption();
    AtInterruption(const AtInterruption&) = delete;
    AtInterruption& operator=(const AtInterruption&) = delete;

private:
    const Kind kind_;
};

}  // namespace Tool
