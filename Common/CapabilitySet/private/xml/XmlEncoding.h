// Finds the declared encoding of an XML text and converts the text to UTF-8.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet::xml
{

/// Provides a document's text in UTF-8, so that the parser converts nothing: libxml2 crashes or
/// leaks when a converter runs out of memory. This is the given text, unless it declares another
/// encoding that the form obeys; then it is converted up to the first byte that is invalid in that
/// encoding, where the parser would stop as well.
class Utf8Text
{
public:
    /// `text` must outlive this object, and a QuietLibxml must exist. Throws std::bad_alloc.
    Utf8Text(const std::string& text, Form form);

    /// Ends in a NUL. Empty if the encoding is unknown.
    [[nodiscard]] std::string_view Get() const { return text_; }

    /// Why the text is not a document, whatever the parser says: it declares an encoding that is
    /// unknown or not its own. Empty message if it is fine.
    [[nodiscard]] const Problem& Refusal() const { return refusal_; }

private:
    std::string converted_;
    std::string_view text_;
    Problem refusal_;
};

}  // namespace CapabilitySet::xml
