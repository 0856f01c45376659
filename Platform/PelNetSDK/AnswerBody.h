// The body of an answer, held once however it arrives and however large it is.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace PelNet
{

/// Bytes in a chain of blocks: growing never copies what has arrived, so a package of hundreds of
/// megabytes costs its own size and little more.
class AnswerBody
{
public:
    /// The largest answer accepted: the library's largest buffer is 1,000 MiB.
    static constexpr std::size_t kDefaultLimit = std::size_t{1100} * 1024 * 1024;

    explicit AnswerBody(std::size_t limit = kDefaultLimit) : limit_(limit) {}
    AnswerBody(AnswerBody&& other) noexcept;
    AnswerBody& operator=(AnswerBody&&) = delete;
    AnswerBody(const AnswerBody&) = delete;
    AnswerBody& operator=(const AnswerBody&) = delete;
    ~AnswerBody() = default;

    /// Appends bytes; false when the limit would be passed. Throws std::bad_alloc.
    [[nodiscard]] bool Append(const char* bytes, std::size_t count);
    /// Takes a whole text without copying it; false when it is greater than the limit.
    [[nodiscard]] bool Adopt(std::string&& text);
    void Clear() noexcept;

    [[nodiscard]] std::size_t Size() const noexcept { return size_; }
    [[nodiscard]] std::size_t Limit() const noexcept { return limit_; }
    /// Copies the first `count` bytes, or all when there are fewer; returns how many.
    std::size_t CopyTo(void* target, std::size_t count) const noexcept;
    /// The same, giving back each block once it is copied: no large answer is held twice. Nothing
    /// is left of the body.
    std::size_t MoveTo(void* target, std::size_t count) noexcept;
    /// The first `count` bytes, or all when there are fewer.
    [[nodiscard]] std::string Head(std::size_t count) const;

private:
    std::vector<std::string> blocks_;
    std::size_t size_ = 0;
    std::size_t limit_;
};

}  // namespace PelNet
