// Produces and verifies data packages.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/Package.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <cstring>

namespace Device
{
namespace
{

constexpr std::uint64_t kHeadSize = 32;
constexpr std::uint64_t kCheckSize = 8;
static_assert(kSmallestPackage == kHeadSize + kCheckSize);

// CRC-32 with the reflected polynomial 0xEDB88320, as in zip and Ethernet.
class Crc32
{
public:
    void Add(const char* bytes, size_t count)
    {
        for (size_t i = 0; i < count; ++i) {
            state_ = kTable[(state_ ^ static_cast<unsigned char>(bytes[i])) & 0xff] ^ (state_ >> 8);
        }
    }

    [[nodiscard]] std::string Text() const
    {
        char digits[kCheckSize + 1];
        std::snprintf(digits, sizeof digits, "%08x", ~state_);
        return digits;
    }

private:
    static constexpr std::array<std::uint32_t, 256> kTable = [] {
        std::array<std::uint32_t, 256> table{};
        for (std::uint32_t i = 0; i < table.size(); ++i) {
            std::uint32_t value = i;
            for (int bit = 0; bit < 8; ++bit) {
                value = (value >> 1) ^ ((value & 1) != 0 ? 0xEDB88320u : 0u);
            }
            table[i] = value;
        }
        return table;
    }();

    std::uint32_t state_ = 0xffffffff;
};

std::string HeadOf(std::uint64_t size)
{
    char head[kHeadSize + 1];
    std::snprintf(head, sizeof head, "TARN package 1 %016llu\n",
                  static_cast<unsigned long long>(size));
    return head;
}

// SplitMix64 gives the same bytes on every machine.
std::uint64_t Mixed(std::uint64_t value)
{
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9ull;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EBull;
    return value ^ (value >> 31);
}

class Package : public BodySource
{
public:
    Package(std::uint64_t size, std::string_view name)
        : size_(std::clamp(size, kSmallestPackage, kLargestPackage)), head_(HeadOf(size_))
    {
        for (const char c : name) {
            seed_ = (seed_ ^ static_cast<unsigned char>(c)) * 0x100000001B3ull;
        }
    }

    [[nodiscard]] std::uint64_t Size() const override { return size_; }

    size_t Read(char* to, size_t count) override
    {
        const std::uint64_t end = size_ - kCheckSize;
        size_t done = 0;
        while (done < count && position_ < size_) {
            const std::uint64_t left = (position_ < end ? end : size_) - position_;
            const auto part =
                static_cast<size_t>(std::min<std::uint64_t>({count - done, left, kBlock}));
            if (position_ < end) {
                Fill(to + done, part);
                crc_.Add(to + done, part);
            } else {
                crc_.Text().copy(to + done, part, static_cast<size_t>(position_ - end));
            }
            position_ += part;
            done += part;
        }
        return done;
    }

private:
    static constexpr std::uint64_t kBlock = 65536;

    // Writes the next bytes of head and filler.
    void Fill(char* to, size_t count) const
    {
        size_t i = 0;
        for (; i < count && position_ + i < kHeadSize; ++i) {
            to[i] = head_[static_cast<size_t>(position_) + i];
        }
        while (i < count) {
            const std::uint64_t at = position_ + i;
            std::uint64_t word = Mixed(seed_ + at / 8 * 0x9E3779B97F4A7C15ull) >> at % 8 * 8;
            for (std::uint64_t k = at % 8; k < 8 && i < count; ++k, ++i, word >>= 8) {
                to[i] = static_cast<char>(word & 0xff);
            }
        }
    }

    const std::uint64_t size_;
    const std::string head_;
    std::uint64_t seed_ = 0xCBF29CE484222325ull;
    std::uint64_t position_ = 0;
    Crc32 crc_;
};

}  // namespace

std::shared_ptr<BodySource> MakePackage(std::uint64_t size, std::string_view name)
{
    return std::make_shared<Package>(size, name);
}

bool IsWholePackage(std::string_view text)
{
    if (text.size() < kSmallestPackage || !text.starts_with(HeadOf(text.size()))) {
        return false;
    }
    Crc32 crc;
    crc.Add(text.data(), text.size() - kCheckSize);
    return text.ends_with(crc.Text());
}

std::optional<std::uint64_t> PackageSizeOf(std::string_view name)
{
    constexpr std::string_view kPrefix = "pkg-";
    if (!name.starts_with(kPrefix)) {
        return std::nullopt;
    }
    name.remove_prefix(kPrefix.size());
    const char* end = name.data() + name.size();
    std::uint64_t number = 0;
    const auto [stop, error] = std::from_chars(name.data(), end, number);
    const std::string_view unit(stop, static_cast<size_t>(end - stop));
    const int shift = unit.empty()  ? 0
                      : unit == "K" ? 10
                      : unit == "M" ? 20
                      : unit == "G" ? 30
                                    : -1;
    return error == std::errc() && shift >= 0 && number <= kLargestPackage >> shift
               ? std::optional(number << shift)
               : std::nullopt;
}

}  // namespace Device
