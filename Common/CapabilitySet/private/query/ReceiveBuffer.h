// The buffer an answer is received into: all zero before each attempt, larger with each.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace CapabilitySet::query
{

/// Up to 16 KiB, the first attempt of most operations, it is the object itself, which so belongs on
/// the stack; beyond that it comes from the heap. From 128 KiB on one mapping of the largest size
/// serves all attempts of an operation: only what the SDK wrote to costs memory, and it is given
/// back, not cleared, before the next attempt.
class ReceiveBuffer
{
public:
    /// `limit` is the largest size that will be asked for.
    explicit ReceiveBuffer(std::size_t limit) : limit_(limit) {}
    ~ReceiveBuffer();
    ReceiveBuffer(const ReceiveBuffer&) = delete;
    ReceiveBuffer& operator=(const ReceiveBuffer&) = delete;

    /// A zeroed buffer of this size in place of the last one. Throws std::bad_alloc.
    char* Renew(std::size_t size);

    /// The text received: up to the first NUL, or all of a buffer that is full.
    [[nodiscard]] std::string_view Text() const;

    /// Copies the first `count` bytes, at most the size, and gives a mapping's pages back as it
    /// goes: no package is held twice. The buffer's content is lost.
    void MoveTo(char* target, std::size_t count);

private:
    void Release();
    bool Map(std::size_t size);

    std::size_t limit_;
    std::size_t size_ = 0;
    std::size_t mapped_ = 0;  ///< bytes of the mapping, 0: the buffer is on the heap
    char* data_ = nullptr;
    std::array<char, 16384> first_;  // cleared as far as it is asked for
};

}  // namespace CapabilitySet::query
