// What a simulated device accepts at most. Each limit bounds a cost that the other side controls.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace Device
{

// Connections.

/// Connections at once, each with a thread.
inline constexpr unsigned kMostConnections = 256;
/// Time for the headers of a connection's first request, the TLS handshake included.
inline constexpr std::chrono::seconds kHeaderTimeout{20};
/// Time for a request's body.
inline constexpr std::chrono::seconds kBodyTimeout{60};
/// Time between two requests, and between two packets of a request or an answer.
inline constexpr std::chrono::seconds kIdleTimeout{60};
/// Bytes of a refused body that are read and dropped. A client that is still sending would not see
/// the answer.
inline constexpr std::uint64_t kMostDropped = 64u << 20;

// Requests.

/// Bytes of a request's body. The largest real one, the settings of 1,000 zones, has 200 KB. JSON
/// takes up to 52 bytes of memory per byte of text.
inline constexpr std::size_t kMostBody = 1u << 20;
/// Larger bodies are handled one at a time, so that memory does not grow with the connections.
inline constexpr std::size_t kLargeBody = 64u << 10;
/// Levels of arrays and objects. Real documents have under ten; printing indents every line by
/// its level, so an answer can grow by this factor.
inline constexpr int kMostJsonDepth = 64;
/// Attributes of one XML element, namespaces included. The parser compares each with every other
/// one; no client sends more than a handful.
inline constexpr int kMostAttributes = 100;
/// Namespace declarations of one XML document. The parser searches all of them at each element.
inline constexpr int kMostNamespaces = 100;
/// Bytes of an XML text that names a channel.
inline constexpr std::size_t kMostChannelText = 32;
/// Entries of a batch, such as zones to bypass. Each one is answered by a log entry and an error.
inline constexpr std::size_t kMostBatch = 1000;
/// Bytes of a search description. Each of its time spans and filters is compared with each item.
inline constexpr std::size_t kMostSearchText = 64u << 10;
/// Bytes of one alarm host item's configuration. Hundreds of items stay in memory.
inline constexpr std::size_t kMostItemText = 16u << 10;

// State.

/// Entries of an alarm host's log; the oldest ones go first.
inline constexpr std::size_t kMostLogEntries = 10'000;
/// Bytes of an event in the log. It repeats what the client wrote.
inline constexpr std::size_t kMostEventText = 64;
/// Search tasks kept at once.
inline constexpr std::size_t kMostTasks = 1000;
/// Nonces whose use is remembered; older ones count as stale.
inline constexpr std::size_t kMostUsedNonces = 10'000;

// Profiles. A folder may come from anyone.

/// Bytes of one file. A list of 20,000 search results has about 6 MB.
inline constexpr std::size_t kMostProfileFile = 16u << 20;
/// Bytes of all documents together, repeated ones counted each time.
inline constexpr std::size_t kMostProfileBytes = 64u << 20;
/// Bytes of a series ("repeat") once it is expanded, and its things.
inline constexpr std::size_t kMostSeriesBytes = 64u << 20;
inline constexpr int kMostRepeats = 100'000;
/// Days of recordings, and the same counted for each channel: a day has up to 72 recordings.
inline constexpr int kMostRecordedDays = 366;
inline constexpr std::size_t kMostChannelDays = 20'000;
/// A channel's number; the numbers of its tracks are about a hundred times as large.
inline constexpr int kMostChannelNumber = 1'000'000;

}  // namespace Device
