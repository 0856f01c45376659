// A file that appears whole or not at all.
// SPDX-License-Identifier: Apache-2.0
#include "DownloadFile.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "Failure.h"

namespace Tool
{

namespace
{

constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};

// The signal handler knows nothing else. Empty: there is no unfinished file.
std::array<char, 4096> unfinished{};

void RemoveUnfinished()
{
    if (unfinished.front() != '\0') {
        unlink(unfinished.data());
        unfinished.front() = '\0';
    }
}

void EndBySignal(int signal)
{
    RemoveUnfinished();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void Handle(void (*handler)(int))
{
    for (const int signal : kSignals) {
        std::signal(signal, handler);
    }
}

}  // namespace

DownloadFile::DownloadFile(std::string file) : file_(std::move(file))
{
    const std::string pattern = file_ + ".XXXXXX";
    if (pattern.size() >= unfinished.size()) {
        throw Failure("cannot write " + file_ + ": its name is too long");
    }
    // No signal may come between the file and its name.
    sigset_t held{};
    sigset_t former{};
    for (const int signal : kSignals) {
        sigaddset(&held, signal);
    }
    pthread_sigmask(SIG_BLOCK, &held, &former);
    std::array<char, 4096> name{};
    pattern.copy(name.data(), name.size() - 1);
    descriptor_ = mkstemp(name.data());
    const int error = errno;
    if (descriptor_ >= 0) {
        unfinished = name;
        Handle(EndBySignal);
    }
    pthread_sigmask(SIG_SETMASK, &former, nullptr);
    errno = error;
    if (descriptor_ < 0) {
        Fail();
    }
}

DownloadFile::~DownloadFile()
{
    Handle(SIG_DFL);
    RemoveUnfinished();
    if (descriptor_ >= 0) {
        close(descriptor_);
    }
}

void DownloadFile::Fail() const
{
    // NOLINTNEXTLINE(concurrency-mt-unsafe): nobody else asks for error texts
    throw Failure("cannot write " + file_ + ": " + std::strerror(errno));
}

void DownloadFile::Finish(std::string_view bytes)
{
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            Fail();
        }
        bytes.remove_prefix(static_cast<std::size_t>(written < 0 ? 0 : written));
    }
    // The file of a download is as readable as any other that the user makes.
    const mode_t mask = umask(0);
    umask(mask);
    if (fchmod(descriptor_, 0666 & ~mask) != 0 || fsync(descriptor_) != 0 ||
        std::rename(unfinished.data(), file_.c_str()) != 0) {
        Fail();
    }
    unfinished.front() = '\0';
}

}  // namespace Tool
