// A file that appears complete or not at all.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/session/DownloadFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "Tool/Failure.h"

namespace Tool
{

namespace
{

constexpr const char* kOpenFiles = "/proc/self/fd";

std::string FolderOf(const std::string& file)
{
    const std::size_t slash = file.rfind('/');
    return slash == std::string::npos ? "." : file.substr(0, slash + 1);
}

/// Permissions of a file that the user creates.
mode_t UsualMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return 0666 & ~mask;
}

/// A name beside the file that nothing has; empty if none was found.
std::string NameBeside(const std::string& file)
{
    // mkdtemp finds the name; a folder in its place cannot be mistaken for a download.
    std::string name = file + ".XXXXXX";
    if (mkdtemp(name.data()) == nullptr) {
        return {};
    }
    rmdir(name.c_str());
    return name;
}

}  // namespace

DownloadFile::DownloadFile(std::string file) : file_(std::move(file))
{
    CheckTarget();
    if (!OpenWithoutName()) {
        OpenWithName();
    }
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
    // NOLINTNEXTLINE(concurrency-mt-unsafe): only this thread asks for error texts
    throw Failure("cannot write " + file_ + ": " + std::strerror(errno));
}

void DownloadFile::CheckTarget()
{
    struct stat status
    {
    };
    if (lstat(file_.c_str(), &status) != 0) {
        return;
    }
    if (!S_ISREG(status.st_mode)) {
        throw Failure("cannot write " + file_ + ": it is not a regular file");
    }
    mode_ = status.st_mode & 07777;
}

bool DownloadFile::OpenWithoutName()
{
#ifdef O_TMPFILE
    if (access(kOpenFiles, X_OK) == 0) {
        descriptor_ = open(FolderOf(file_).c_str(), O_TMPFILE | O_WRONLY | O_CLOEXEC, 0600);
    }
#endif
    return descriptor_ >= 0;
}

void DownloadFile::OpenWithName()
{
    unfinished_ = file_ + ".XXXXXX";
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

void DownloadFile::Write(std::string_view bytes) const
{
    while (!bytes.empty()) {
        const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            Fail();
        }
        bytes.remove_prefix(static_cast<std::size_t>(written < 0 ? 0 : written));
    }
}

/// Gives the file without a name the name of the download, or else a temporary one.
bool DownloadFile::TakeName()
{
    const std::string open = std::string(kOpenFiles) + "/" + std::to_string(descriptor_);
    const auto link = [&open](const std::string& name) {
        return linkat(AT_FDCWD, open.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0;
    };
    if (!mode_ && link(file_)) {
        return true;
    }
    // A name cannot be linked over an existing file, only renamed over it.
    unfinished_ = NameBeside(file_);
    if (unfinished_.empty() || !link(unfinished_)) {
        return false;
    }
    if (std::rename(unfinished_.c_str(), file_.c_str()) != 0) {
        const int error = errno;
        unlink(unfinished_.c_str());
        errno = error;
        return false;
    }
    return true;
}

void DownloadFile::Finish(std::string_view bytes)
{
    Write(bytes);
    CheckTarget();
    if (fchmod(descriptor_, mode_.value_or(UsualMode())) != 0 || fsync(descriptor_) != 0) {
        Fail();
    }
    const SignalsHeld held;
    const bool isPlaced =
        removal_ ? std::rename(unfinished_.c_str(), file_.c_str()) == 0 : TakeName();
    if (!isPlaced) {
        Fail();
    }
    removal_.reset();
}

}  // namespace Tool
