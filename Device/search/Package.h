// Data packages: answers of any size, made while they are read, that a downloader can check.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Device/DeviceModel.h"

namespace Device
{

inline constexpr std::uint64_t kSmallestPackage = 40;
inline constexpr std::uint64_t kLargestPackage = std::uint64_t{4} << 30;

/// A package of exactly `size` bytes, brought within the two limits, which depend on nothing but
/// size and name: a head of 32 bytes ("TARN package 1 ", the size in 16 decimal digits, a line
/// feed), bytes without meaning, and at the end the CRC-32 of everything before it in 8 hexadecimal
/// digits.
std::shared_ptr<BodySource> MakePackage(std::uint64_t size, std::string_view name);

/// Whether the text is a whole package as MakePackage makes them.
bool IsWholePackage(std::string_view text);

/// The size that a name asks for: "pkg-50M" means 50 MiB, with K, M, G or nothing for bytes.
/// Nothing when it is no such name or asks for more than the largest package.
std::optional<std::uint64_t> PackageSizeOf(std::string_view name);

}  // namespace Device
