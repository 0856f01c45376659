// A new folder for one test's files.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace TestSupport
{

/// Created under a name that no other process uses; removed with its content.
class TemporaryFolder
{
public:
    TemporaryFolder()
        : path_((std::filesystem::temp_directory_path() / "capabilityset-XXXXXX").string())
    {
        if (mkdtemp(path_.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
    }
    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::string& Path() const { return path_; }
    [[nodiscard]] std::string File(const std::string& name) const { return path_ + "/" + name; }
    [[nodiscard]] bool IsEmpty() const { return std::filesystem::is_empty(path_); }

private:
    std::string path_;
};

}  // namespace TestSupport
