// What the fuzzers run, and the tests too, over the seeds and the kept finds.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

namespace Fuzz
{

// Each takes any bytes, and throws std::logic_error when a property does not hold for them.

/// Records read in one pass hold what a plain cursor finds field by field, flags included; an
/// ability's tree holds the whole document; a text that is no document of a record leaves it alone.
void Xml(const std::string& text);

/// The shared element types, and each way of reading a text, are what libxml2's own accessors and
/// streams make of every element.
void Elements(const std::string& text);

/// A record reads alike each time, and reads back what it writes.
void Json(const std::string& text);

/// Numbers are those of a stream with the classic locale.
void Number(const std::string& text);

/// Whatever a device answers and says of sizes, the transparent manager tells each failure once, as
/// it was sent, and hands out no byte beyond what was announced.
void Transparent(const std::string& text);

/// Requests made of records are documents, and read back equal.
void Requests(const std::string& text);

/// A profile is refused with a sentence, or makes a device that answers each of its requests.
void Profile(const std::string& text);

/// What a device says of a refusal is read alike however it arrives, and always comes to an error
/// with a text.
void Refusal(const std::string& text);

/// Whatever a device sends, its answer arrives whole or as an error, what does not fit is kept for
/// the next attempt, and no password is sent in the clear.
void HttpAnswer(const std::string& text);

}  // namespace Fuzz
