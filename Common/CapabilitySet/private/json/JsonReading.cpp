// Reads JSON answers: parses the text, and finds members without testing for them.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/json/JsonReading.h"

#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/TreeMemory.h"

namespace CapabilitySet::json
{
namespace
{

/// Whether a text may hold more comments than are kept. Strings such as addresses count as well,
/// which costs at most the comments.
bool MayHoldManyComments(std::string_view text)
{
    std::size_t marks = 0;
    for (std::size_t at = 0; (at = text.find('/', at)) != std::string_view::npos; ++at) {
        const char next = at + 1 < text.size() ? text[at + 1] : '\0';
        if ((next == '/' || next == '*') && ++marks > limits::kJsonComments) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool ParseText(std::string_view text, Json::Value& root)
{
    Json::Reader reader;
    return reader.parse(text.data(), text.data() + text.size(), root, !MayHoldManyComments(text));
}

bool IsWithinLimits(std::string_view text)
{
    if (!TakesTooMuchMemory(text, JsonTreeBytes)) {
        return true;
    }
    log::Error(CAPABILITYSET_HERE, "The JSON answer would take more than %zu bytes of memory.",
               limits::DocumentMemory());
    return false;
}

}  // namespace CapabilitySet::json
