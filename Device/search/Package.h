// Data packages: answers of any size that a downloader can verify.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "Device/message/Message.h"

namespace Device
{

inline constexpr std::uint64_t kSmallestPackage = 40;
inline constexpr std::uint64_t kLargestPackage = std::uint64_t{4} << 30;

/// Makes a package of `size` bytes, clamped to the two limits. It consists of a 32-byte head ("TARN
/// package 1 ", the size in 16 decimal digits, a line feed), filler, and the CRC-32 of everything
/// before it in 8 hexadecimal digits. Same size and name, same bytes.
std::shared_ptr<BodySource> MakePackage(std::uint64_t size, std::string_view name);

/// Whether the text is a complete package.
bool IsWholePackage(std::string_view text);

/// The size that a name asks for: "pkg-50M" means 50 MiB; K, G and no unit work too. Returns
/// nothing for other names and for more than kLargestPackage.
std::optional<std::uint64_t> PackageSizeOf(std::string_view name);

}  // namespace Device
