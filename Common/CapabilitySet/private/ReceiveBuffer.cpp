// The buffer an answer is received into.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/ReceiveBuffer.h"

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
/// Answers mostly fit the start of a buffer: cleared in place it keeps its pages.
constexpr std::size_t kClearedInPlace = 16 * 1024;

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

bool ZeroPages(char* pages, std::size_t size)
{
    std::memset(pages, 0, std::min(size, kClearedInPlace));
    return size <= kClearedInPlace ||
           madvise(pages + kClearedInPlace, size - kClearedInPlace, MADV_DONTNEED) == 0;
}
#else
char* MapPages(std::size_t /*size*/)
{
    return nullptr;
}

void UnmapPages(char* /*pages*/, std::size_t /*size*/) {}

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
    if (mapped_ != 0)
        UnmapPages(data_, mapped_);
    else if (data_ != first_.data())
        std::free(data_);
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
    } else if (size < kSmallestMapping || !Map(size))
        data_ = static_cast<char*>(std::calloc(size, 1));
    if (data_ == nullptr)
        throw std::bad_alloc();
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

std::string_view ReceiveBuffer::Text() const
{
    if (data_ == nullptr)
        return {};
    const void* const end = std::memchr(data_, '\0', size_);
    return {data_, end == nullptr
                       ? size_
                       : static_cast<std::size_t>(static_cast<const char*>(end) - data_)};
}

}  // namespace CapabilitySet::query
