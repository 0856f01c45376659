// The body of an answer as a chain of blocks.
// SPDX-License-Identifier: Apache-2.0
#include "PelNetSDK/AnswerBody.h"

#include <algorithm>
#include <utility>

namespace PelNet
{

namespace
{
constexpr std::size_t kFirstBlock = 16 * 1024;
constexpr std::size_t kLargestBlock = 4 * 1024 * 1024;

/// Copies the part of a block, which begins at `begin`, that is among the first `count` bytes.
std::size_t CopyBlock(const std::string& block, void* target, std::size_t begin,
                      std::size_t count) noexcept
{
    return begin < count ? block.copy(static_cast<char*>(target) + begin, count - begin) : 0;
}
}  // namespace

AnswerBody::AnswerBody(AnswerBody&& other) noexcept
    : blocks_(std::move(other.blocks_)), size_(std::exchange(other.size_, 0)), limit_(other.limit_)
{
    other.blocks_.clear();
}

bool AnswerBody::Append(const char* bytes, std::size_t count)
{
    if (count > limit_ - size_) {
        return false;
    }
    while (count > 0) {
        if (blocks_.empty() || blocks_.back().size() == blocks_.back().capacity()) {
            std::string block;
            block.reserve(std::clamp(size_, kFirstBlock, kLargestBlock));
            blocks_.push_back(std::move(block));
        }
        std::string& block = blocks_.back();
        const std::size_t part = std::min(count, block.capacity() - block.size());
        block.append(bytes, part);
        bytes += part;
        count -= part;
        size_ += part;
    }
    return true;
}

bool AnswerBody::Adopt(std::string&& text)
{
    Clear();
    if (text.size() > limit_) {
        return false;
    }
    const std::size_t size = text.size();
    blocks_.push_back(std::move(text));
    size_ = size;
    return true;
}

void AnswerBody::Clear() noexcept
{
    std::vector<std::string>().swap(blocks_);
    size_ = 0;
}

std::size_t AnswerBody::CopyTo(void* target, std::size_t count) const noexcept
{
    std::size_t copied = 0;
    for (const std::string& block : blocks_) {
        copied += CopyBlock(block, target, copied, count);
    }
    return copied;
}

std::size_t AnswerBody::MoveTo(void* target, std::size_t count) noexcept
{
    const std::size_t copied = std::min(count, size_);
    // Backwards: the newest block lies at the end of the heap, and the heap shrinks only there.
    for (std::size_t begin = size_; !blocks_.empty(); blocks_.pop_back()) {
        begin -= blocks_.back().size();
        CopyBlock(blocks_.back(), target, begin, count);
    }
    Clear();
    return copied;
}

std::string AnswerBody::Head(std::size_t count) const
{
    std::string head(std::min(count, size_), '\0');
    CopyTo(head.data(), head.size());
    return head;
}

}  // namespace PelNet
