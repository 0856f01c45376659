// A password in memory, overwritten once it is no longer needed.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string_view>
#include <vector>

namespace PelNet
{

/// Unlike a short std::string, it leaves no copy behind when moved.
class Secret
{
public:
    Secret() = default;
    explicit Secret(std::string_view text) : bytes_(text.begin(), text.end())
    {
        bytes_.push_back('\0');
    }
    Secret(Secret&& other) noexcept = default;
    Secret& operator=(Secret&& other) noexcept
    {
        Wipe();
        bytes_.swap(other.bytes_);
        return *this;
    }
    Secret(const Secret&) = delete;
    Secret& operator=(const Secret&) = delete;
    ~Secret() { Wipe(); }

    [[nodiscard]] bool Empty() const noexcept { return bytes_.size() <= 1; }
    [[nodiscard]] const char* Text() const noexcept { return bytes_.empty() ? "" : bytes_.data(); }

    void Wipe() noexcept
    {
        // Volatile, so that the compiler must not drop the writes.
        for (volatile char& byte : bytes_) {
            byte = '\0';
        }
        bytes_.clear();
    }

private:
    std::vector<char> bytes_;
};

}  // namespace PelNet
