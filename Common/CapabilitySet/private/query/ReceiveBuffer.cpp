// The buffer that receives an answer: zeroed before each attempt, larger each time.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/query/ReceiveBuffer.h"

#include <algorithm>
#include <cstring>
#include <new>

#if defined(__unix__)
#include <sys/mman.h>
#endif

namespace CapabilitySet::query
{
namespace
{

/// Below this the heap is cheaper than a mapping.
constexpr std::size_t kSmallestMapping = 128 * 1024;
/// Most answers fit into this much; clearing it in place keeps its pages.
constexpr std::size_t kClearedInPlace = 16 * 1024;
/// A multiple of every page size.
constexpr std::size_t kMovedAtOnce = 4 * 1024 * 1024;

#if defined(__unix__)
char* MapPages(std::size_t size)
{
    void* const pages = mmap(nullptr, size, PROT_READ | PROT_WRITE,
                             MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    return pages == MAP_FAILED ? nullptr : static_cast<char*>(pages);
}

void UnmapPages(char* pages, std::size_t size)
{
    munmap(pages, size);
}

bool GiveBack(char* pages, std::size_t size)
{
    return madvise(pages, size, MADV_DONTNEED) == 0;
}

bool ZeroPages(char* pages, std::size_t size)
{
    std::memset(pages, 0, std::min(size, kClearedInPlace));
    return size <= kClearedInPlace || GiveBack(pages + kClearedInPlace, size - kClearedInPlace);
}
#else
char* MapPages(std::size_t /*size*/)
{
    return nullptr;
}

void UnmapPages(char* /*pages*/, std::size_t /*size*/) {}

bool GiveBack(char* /*pages*/, std::size_t /*size*/)
{
    return false;
}

bool ZeroPages(char* /*pages*/, std::size_t /*size*/)
{
    return false;
}
#endif

}  // namespace

ReceiveBuffer::~ReceiveBuffer()
{
    Release();
}

void ReceiveBuffer::Release()
{
    if (mapped_ != 0) {
        UnmapPages(data_, mapped_);
    } else if (data_ != first_.data()) {
        std::free(data_);
    }
    data_ = nullptr;
    mapped_ = 0;
    size_ = 0;
}

char* ReceiveBuffer::Renew(std::size_t size)
{
    if (mapped_ >= size && ZeroPages(data_, size_)) {
        size_ = size;
        return data_;
    }
    Release();
    if (size <= first_.size()) {
        data_ = first_.data();
        std::memset(data_, 0, size);
    } else if (size < kSmallestMapping || !Map(size)) {
        data_ = static_cast<char*>(std::calloc(size, 1));
    }
    if (data_ == nullptr) {
        throw std::bad_alloc();
    }
    size_ = size;
    return data_;
}

bool ReceiveBuffer::Map(std::size_t size)
{
    for (const std::size_t wanted : {std::max(size, limit_), size}) {
        data_ = MapPages(wanted);
        if (data_ != nullptr) {
            mapped_ = wanted;
            return true;
        }
    }
    return false;
}

void ReceiveBuffer::MoveTo(char* target, std::size_t count)
{
    const std::size_t step = mapped_ != 0 ? kMovedAtOnce : count;
    for (std::size_t at = 0; at < count; at += step) {
        const std::size_t part = std::min(step, count - at);
        std::memcpy(target + at, data_ + at, part);
        if (mapped_ != 0) {
            GiveBack(data_ + at, part);
        }
    }
}

std::string_view ReceiveBuffer::Text() const
{
    if (data_ == nullptr) {
        return {};
    }
    const void* const end = std::memchr(data_, '\0', size_);
    return {data_, end == nullptr
                       ? size_
                       : static_cast<std::size_t>(static_cast<const char*>(end) - data_)};
}

}  // namespace CapabilitySet::query
