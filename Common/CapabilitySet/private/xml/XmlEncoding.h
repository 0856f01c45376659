// The encoding that an XML text declares, and the text in UTF-8.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>

#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet::xml
{

/// Has a document's text in UTF-8, so that the parser converts nothing: it neither survives nor
/// frees everything when memory runs out for a converter. The text is the one given, unless it
/// declares another encoding and the form obeys that; then it is the text's beginning, up to the
/// first byte that is no text in that encoding, which is where the parser would stop too.
class Utf8Text
{
public:
    /// `text` outlives it, and a QuietLibxml lives. Throws std::bad_alloc.
    Utf8Text(const std::string& text, Form form);

    /// Ends in a NUL. Empty where the encoding is unknown.
    [[nodiscard]] std::string_view Get() const { return text_; }

    /// Why the text is no document whatever the parser says: it declares an encoding that is
    /// unknown or not its own. No message otherwise.
    [[nodiscard]] const Problem& Refusal() const { return refusal_; }

private:
    std::string converted_;
    std::string_view text_;
    Problem refusal_;
};

}  // namespace CapabilitySet::xml
