// A file that appears complete or not at all.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <sys/types.h>

#include "Tool/terminal/Interruption.h"

namespace Tool
{

/// Writes to a file without a name in the same folder and gives it its name at the end, so that
/// nothing is left behind however the program ends. Where the file system cannot do that, the file
/// has a temporary name, which is removed with the object and by the signals of Interruption.h; a
/// crash or SIGKILL leaves it there. One object at a time.
class DownloadFile
{
public:
    /// Throws a failure if the file cannot be created, or if something other than a regular file
    /// has that name.
    explicit DownloadFile(std::string file);
    ~DownloadFile();
    DownloadFile(const DownloadFile&) = delete;
    DownloadFile& operator=(const DownloadFile&) = delete;

    [[nodiscard]] const std::string& Name() const { return file_; }

    /// Writes everything, then replaces the file and keeps its permissions. Throws a failure if
    /// the disk is full or gone; an existing file is untouched then.
    void Finish(std::string_view bytes);

private:
    [[noreturn]] void Fail() const;
    void CheckTarget();
    bool OpenWithoutName();
    void OpenWithName();
    void Write(std::string_view bytes) const;
    bool TakeName();

    const std::string file_;
    std::optional<mode_t> mode_;  ///< permissions of the file that is replaced
    std::string unfinished_;      ///< the temporary name, if there is one
    std::optional<AtInterruption> removal_;
    int descriptor_ = -1;
};

}  // namespace Tool
