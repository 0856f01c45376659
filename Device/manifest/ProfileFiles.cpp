// Where the files of a profile come from.
// SPDX-License-Identifier: Apache-2.0
#include "Device/manifest/ProfileFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "Device/Limits.h"

namespace Device
{
namespace
{

// A fault to be reported about the file at hand.
using Fault = std::runtime_error;

[[noreturn]] void ThrowSystemFault()
{
    // That is how O_NOFOLLOW reports a link.
    throw Fault(errno == ELOOP ? "it is a symbolic link" : std::generic_category().message(errno));
}

class Descriptor
{
public:
    explicit Descriptor(int number) : number_(number)
    {
        if (number_ < 0) {
            ThrowSystemFault();
        }
    }
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor()
    {
        if (number_ >= 0) {
            close(number_);
        }
    }

    [[nodiscard]] int Number() const { return number_; }

private:
    int number_;
};

// Opens step by step, so that no part of the name can lead out of the folder.
Descriptor OpenBeneath(const std::string& folder, std::string_view name)
{
    Descriptor at(open(folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
    while (true) {
        const size_t slash = name.find('/');
        const std::string part(name.substr(0, slash));
        if (part.empty() || part == "." || part == "..") {
            throw Fault("it is not beneath the profile's folder");
        }
        if (slash == std::string_view::npos) {
            // O_NONBLOCK: opening a FIFO would wait for a writer.
            return Descriptor(openat(at.Number(), part.c_str(),
                                     O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
        }
        at = Descriptor(
            openat(at.Number(), part.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
        name.remove_prefix(slash + 1);
    }
}

std::string ReadRegularFile(const Descriptor& file)
{
    struct stat status = {};
    if (fstat(file.Number(), &status) != 0) {
        ThrowSystemFault();
    }
    if (!S_ISREG(status.st_mode)) {
        throw Fault("it is not a regular file");
    }
    // Read one extra byte to detect files that are too large, growing ones included.
    std::string text(std::min(static_cast<size_t>(status.st_size), kMostProfileFile) + 1, '\0');
    size_t length = 0;
    while (length < text.size()) {
        const ssize_t count = read(file.Number(), text.data() + length, text.size() - length);
        if (count < 0 && errno != EINTR) {
            ThrowSystemFault();
        }
        if (count == 0) {
            break;
        }
        length += count > 0 ? static_cast<size_t>(count) : 0;
    }
    if (length > kMostProfileFile) {
        throw Fault("it has more than " + std::to_string(kMostProfileFile >> 20) + " MiB");
    }
    text.resize(length);
    return text;
}

}  // namespace

ProfileFiles FilesOf(const EmbeddedProfile& profile)
{
    return [&profile](const std::string& name, std::string& error) -> std::optional<std::string> {
        const auto file = std::ranges::find(profile.files, name, &EmbeddedFile::name);
        if (file == profile.files.end()) {
            error = "there is no such file";
            return std::nullopt;
        }
        std::string text;
        for (const std::string_view piece : file->pieces) {
            text += piece;
        }
        return text;
    };
}

ProfileFiles FilesOfFolder(const std::string& folder)
{
    return [folder](const std::string& name, std::string& error) -> std::optional<std::string> {
        try {
            return ReadRegularFile(OpenBeneath(folder, name));
        } catch (const Fault& fault) {
            error = fault.what();
            return std::nullopt;
        }
    };
}

}  // namespace Device
