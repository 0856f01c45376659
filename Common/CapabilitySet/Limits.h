// What one answer of a device may cost at most.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstddef>

#include "CapabilitySet/Export.h"

namespace CapabilitySet::limits
{

// A document beyond a limit is refused like a malformed one, and the log line names the limit. No
// document of a real device comes near any of them.

/// Attributes and namespace declarations of one XML element. libxml2 compares each attribute of an
/// element with all others.
inline constexpr int kAttributes = 1000;

/// Bytes of an XML document's internal subset. Devices send a few lines at most, and libxml2 takes
/// time quadratic in the attributes and values that it declares.
inline constexpr std::size_t kInternalSubsetBytes = 4096;

/// Bytes of attribute values that the internal subset adds to the elements of a document. A few
/// declarations can stand for gigabytes.
inline constexpr std::size_t kDefaultedAttributeBytes = std::size_t{64} * 1024;

/// Bytes of different names in one XML document, enough for more than a hundred thousand. libxml2
/// takes time quadratic in their number.
inline constexpr std::size_t kNameBytes = std::size_t{1024} * 1024;

/// Bytes of a document that is converted from another encoding than UTF-8. Converters count in int
/// and may triple the size.
inline constexpr std::size_t kConvertedBytes = std::size_t{256} * 1024 * 1024;

/// Comments that are kept in a JSON document. JsonCpp reads everything since the last value again
/// at each comment; with more of them the document is read without its comments.
inline constexpr std::size_t kJsonComments = 256;

/// Entries of one list in a record; further ones are left out, after one log line.
inline constexpr std::size_t kListEntries = 100'000;

/// Log lines about unknown options in one document; further ones are not logged.
inline constexpr unsigned int kOptionLines = 32;

/// Bytes of one log line; longer ones are cut.
inline constexpr std::size_t kLogLineBytes = 4096;

/// Bytes of memory for the tree of one document, by default.
inline constexpr std::size_t kDocumentMemory = std::size_t{256} * 1024 * 1024;

/// The bytes of memory that the tree of one document may take, data packages excepted. They are
/// estimated, never too low, before or while the tree is built.
CAPABILITYSET_API std::size_t DocumentMemory();

/// Sets DocumentMemory for all threads, from their next document on.
CAPABILITYSET_API void SetDocumentMemory(std::size_t bytes);

}  // namespace CapabilitySet::limits
