// The buffer that receives an answer: zeroed before each attempt, larger each time.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace CapabilitySet::query
{

/// Sizes up to 16 KiB, the first attempt of most operations, are held in the object itself, so keep
/// it on the stack. Larger ones come from the heap. From 128 KiB on, one mapping of the largest
/// size serves all attempts: only pages the SDK wrote to cost memory, and they are returned, not
/// cleared, before the next attempt.
class ReceiveBuffer
{
public:
    /// `limit` is the largest size that will be requested.
    explicit ReceiveBuffer(std::size_t limit) : limit_(limit) {}
    ~ReceiveBuffer();
    ReceiveBuffer(const ReceiveBuffer&) = delete;
    ReceiveBuffer& operator=(const ReceiveBuffer&) = delete;

    /// Replaces the buffer with a zeroed one of this size. Throws std::bad_alloc.
    char* Renew(std::size_t size);

    /// The text received, up to the first NUL or the end of the buffer.
    [[nodiscard]] std::string_view Text() const;

    /// Copies the first `count` bytes, at most the size, returning pages of a mapping as it goes,
    /// so that no package is held twice. The content of the buffer is lost.
    void MoveTo(char* target, std::size_t count);

private:
    void Release();
    bool Map(std::size_t size);

    std::size_t limit_;
    std::size_t size_ = 0;
    std::size_t mapped_ = 0;  ///< bytes mapped; 0 if the buffer is on the heap
    char* data_ = nullptr;
    std::array<char, 16384> first_;  // cleared only as far as requested
};

}  // namespace CapabilitySet::query
