// A password that is neither on the command line nor left in memory.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/terminal/Password.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include "Tool/Failure.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

namespace
{

// A string that grows beyond its capacity would leave copies in memory.
constexpr std::size_t kLongest = 1024;

volatile std::sig_atomic_t caughtSignal = 0;

void Catch(int signal)
{
    caughtSignal = signal;
}

/// The terminal with its echo off until the object goes.
class SilentTerminal
{
public:
    explicit SilentTerminal(int terminal) : terminal_(terminal)
    {
        struct sigaction action
        {
        };
        action.sa_handler = Catch;  // without SA_RESTART, so that reading ends
        for (std::size_t i = 0; i < kSignals.size(); ++i) {
            sigaction(kSignals[i], &action, &former_[i]);
        }
        tcgetattr(terminal_, &settings_);
        termios silent = settings_;
        silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
        tcsetattr(terminal_, TCSAFLUSH, &silent);
    }
    ~SilentTerminal()
    {
        tcsetattr(terminal_, TCSAFLUSH, &settings_);
        for (std::size_t i = 0; i < kSignals.size(); ++i) {
            sigaction(kSignals[i], &former_[i], nullptr);
        }
        close(terminal_);
    }
    SilentTerminal(const SilentTerminal&) = delete;
    SilentTerminal& operator=(const SilentTerminal&) = delete;

    void Write(const std::string& text) const
    {
        [[maybe_unused]] const ssize_t written = write(terminal_, text.data(), text.size());
    }

    /// Reads one line. False at the end of input, at a signal, and if the line is too long.
    [[nodiscard]] bool ReadLine(std::string& line) const
    {
        char c = 0;
        while (caughtSignal == 0 && read(terminal_, &c, 1) == 1) {
            if (c == '\n') {
                return true;
            }
            if (line.size() == kLongest) {
                return false;
            }
            line += c;
        }
        return false;
    }

private:
    static constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};

    const int terminal_;
    termios settings_{};
    std::array<struct sigaction, kSignals.size()> former_{};
};

/// False if nothing was typed.
bool Prompt(int terminal, const std::string& question, std::string& password)
{
    bool typed = false;
    {
        const SilentTerminal silent(terminal);
        silent.Write(question);
        typed = silent.ReadLine(password);
        silent.Write("\n");
    }
    if (caughtSignal != 0) {
        // The echo is back: now the signal may take effect.
        std::raise(caughtSignal);
    }
    return typed;
}

}  // namespace

Password::Password(const std::string& user, const std::string& device)
{
    text_.reserve(kLongest);
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody sets the environment
    if (const char* const given = std::getenv("CAPSET_PASSWORD");
        given != nullptr && *given != '\0') {
        text_ = given;
        return;
    }
    const int terminal = open("/dev/tty", O_RDWR | O_CLOEXEC | O_NOCTTY);
    if (terminal < 0) {
        throw Failure("there is no terminal to ask for the password of " + user +
                          ": set the environment variable CAPSET_PASSWORD",
                      kUsage);
    }
    if (!Prompt(terminal, "Password of " + Harmless(user) + " at " + Harmless(device) + ": ",
                text_)) {
        throw Failure("no password was given", kUsage);
    }
}

Password::~Password()
{
    explicit_bzero(text_.data(), text_.size());
}

}  // namespace Tool
