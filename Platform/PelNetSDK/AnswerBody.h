// The body of an answer, held once however it arrives and however large it is.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace PelNet
{

/// A chain of blocks. Growing never copies what has arrived, so a package of hundreds of megabytes
/// costs its own size and little more.
class AnswerBody
{
public:
    explicit AnswerBody(std::size_t limit) : limit_(limit) {}
    AnswerBody(AnswerBody&& other) noexcept;
    AnswerBody& operator=(AnswerBody&&) = delete;
    AnswerBody(const AnswerBody&) = delete;
    AnswerBody& operator=(const AnswerBody&) = delete;
    ~AnswerBody() = default;

    /// Appends bytes; false if the limit would be exceeded. Throws std::bad_alloc.
    [[nodiscard]] bool Append(const char* bytes, std::size_t count);
    /// Takes a whole text without copying it; false if it is larger than the limit.
    [[nodiscard]] bool Adopt(std::string&& text);
    void Clear() noexcept;

    [[nodiscard]] std::size_t Size() const noexcept { return size_; }
    [[nodiscard]] std::size_t Limit() const noexcept { return limit_; }
    /// Copies the first `count` bytes, or all if there are fewer; returns how many.
    std::size_t CopyTo(void* target, std::size_t count) const noexcept;
    /// The same, but frees each block once it is copied, so that no large answer is held twice. The
    /// body is empty afterwards.
    std::size_t MoveTo(void* target, std::size_t count) noexcept;
    /// The first `count` bytes, or all if there are fewer.
    [[nodiscard]] std::string Head(std::size_t count) const;

private:
    std::vector<std::string> blocks_;
    std::size_t size_ = 0;
    std::size_t limit_;
};

}  // namespace PelNet
