// A file that appears whole or not at all.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tool/terminal/Interruption.h"

namespace Tool
{

/// Collects what is written beside the file and takes its place when it is finished. What is not
/// finished goes with the object, and also when a signal ends the program. One object at a time.
class DownloadFile
{
public:
    /// Throws a failure when the file cannot be made there.
    explicit DownloadFile(std::string file);
    ~DownloadFile();
    DownloadFile(const DownloadFile&) = delete;
    DownloadFile& operator=(const DownloadFile&) = delete;

    [[nodiscard]] const std::string& Name() const { return file_; }

    /// Writes all of it and puts the file in its place. Throws a failure when the disk is full or
    /// gone; nothing is left behind then.
    void Finish(std::string_view bytes);

private:
    [[noreturn]] void Fail() const;

    const std::string file_;
    std::string unfinished_;  ///< its name until it is finished
    std::optional<AtInterruption> removal_;
    int descriptor_ = -1;
};

}  // namespace Tool
