// A file that appears whole or not at all.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/DownloadFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <sys/stat.h>
#include <unistd.h>

#include "Tool/Failure.h"

namespace Tool
{

DownloadFile::DownloadFile(std::string file)
    : file_(std::move(file)), unfinished_(file_ + ".XXXXXX")
{
    if (unfinished_.size() > AtInterruption::kLongest) {
        throw Failure("cannot write " + file_ + ": its name is too long");
    }
    // No signal may come between the file and its removal.
    const SignalsHeld held;
    descriptor_ = mkstemp(unfinished_.data());
    if (descriptor_ < 0) {
        Fail();
    }
    removal_.emplace(AtInterruption::Kind::RemoveFile, unfinished_);
}

DownloadFile::~DownloadFile()
{
    if (removal_) {
        unlink(unfinished_.c_str());
    }
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
        std::rename(unfinished_.c_str(), file_.c_str()) != 0) {
        Fail();
    }
    removal_.reset();
}

}  // namespace Tool
