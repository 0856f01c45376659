// The functions that the fuzzers run, and the tests over seeds and finds.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Fuzz
{

// Each takes any bytes and throws std::logic_error if a property does not hold for them.

/// Records read in one pass equal what a plain cursor finds field by field, flags included. An
/// ability's tree holds the whole document. A text that is not a record's document leaves it
/// unchanged.
void Xml(const std::string& text);

/// The shared element types and each way of reading a text give what libxml2's accessors and
/// streams give for every element.
void Elements(const std::string& text);

/// A record reads the same each time and reads back what it writes.
void Json(const std::string& text);

/// Numbers equal those of a stream with the classic locale.
void Number(const std::string& text);

/// Whatever a device answers and whatever sizes it reports, the transparent manager reports each
/// failure once, as it was sent, and returns no byte beyond the reported size.
void Transparent(const std::string& text);

/// Requests made from records are documents and read back equal.
void Requests(const std::string& text);

/// A profile is refused with a message, or makes a device that answers each of its requests.
void Profile(const std::string& text);

/// A refusal is read the same however it arrives, and always gives an error with a text.
void Refusal(const std::string& text);

/// Whatever a device sends, its answer arrives whole or as an error, an answer that does not fit is
/// kept for the next attempt, and no password is sent in the clear.
void HttpAnswer(const std::string& text);

}  // namespace Fuzz
