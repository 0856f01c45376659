// The limits of the bundled SDK, each with its reason.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

namespace PelNet::limits
{

// Answers, in bytes, by what was asked. An answer beyond its limit is not read to its end and not
// kept. A caller that passes a larger buffer gets as much as fits.

/// The library's largest buffer for a device ability.
inline constexpr std::size_t kDeviceAbility = 1'024'000;
/// The library's largest buffer for a standard ability.
inline constexpr std::size_t kStandardAbility = 16'384'000;
/// The library's largest buffer for any other document.
inline constexpr std::size_t kDocument = 16'384'000;
/// The library's largest buffer for a data package.
inline constexpr std::size_t kPackage = 1'048'576'000;
/// The library's first buffer for a data package; no document is asked for with one as large.
inline constexpr std::size_t kFirstPackageBuffer = 1'048'576;
/// A status document takes a few hundred bytes. Longer ones are not parsed.
inline constexpr std::size_t kStatusDocument = std::size_t{16} * 1024;
/// What is kept of a refusal: a status document, or enough of a page to show to a person.
inline constexpr std::size_t kRefusal = std::size_t{64} * 1024;
/// A channel's number in decimal, with a line end.
inline constexpr std::size_t kChannelNumber = 16;

// HTTP.

/// All headers of one exchange. Devices send less than 4 KiB, and large servers limit a header line
/// to 8 KiB. libcurl's time for folded headers is quadratic.
inline constexpr std::size_t kHeaders = std::size_t{64} * 1024;
/// A request target, percent-encoded. libcurl refuses URLs beyond 8,000,000 bytes.
inline constexpr std::size_t kTarget = std::size_t{1024} * 1024;
/// How often libcurl may send one request: once, and again after a nonce that has grown stale.
inline constexpr int kSends = 2;
/// Login methods of a server that an error text names.
inline constexpr std::size_t kNamedSchemes = 4;

// Sessions.

/// User IDs in use at a time: more devices than one client shows.
inline constexpr int kUsers = 512;
/// Channel numbers a session remembers: more than any device has. A caller that counts through all
/// integers must not fill the memory.
inline constexpr std::size_t kChannels = 4096;
/// Bytes of the text about a thread's last failure, with its NUL. A fixed array, so that a failed
/// allocation can be reported.
inline constexpr std::size_t kDetail = 256;

}  // namespace PelNet::limits
