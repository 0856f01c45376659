// Reading JSON answers: the text into a tree, and members without a presence test.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstring>
#include <string>
#include <string_view>

#include <json/reader.h>
#include <json/value.h>

namespace CapabilitySet::json
{

/// Parses a text with the reader's default features, comments collected.
inline bool ParseText(std::string_view text, Json::Value& root)
{
    Json::Reader reader;
    return reader.parse(text.data(), text.data() + text.size(), root, true);
}

/// A member of an object; null when there is none. Throws what JsonCpp throws for a value that can
/// have no members.
inline const Json::Value& MemberOf(const Json::Value& object, std::string_view name)
{
    const Json::Value* const member = object.find(name.data(), name.data() + name.size());
    return member == nullptr ? Json::Value::nullSingleton() : *member;
}

/// Hands the root of an answer to `read`. An empty text and one that is not JSON read nothing; an
/// exception, such as JsonCpp's for a member of the wrong kind, ends the reading and goes nowhere.
template <class Read>
void WithRoot(const std::string& text, Read&& read)
{
    if (text.empty())
        return;
    try {
        Json::Value root;
        if (ParseText(text, root))
            read(root);
    } catch (...)  // what was read before stays; answers never throw at the client
    {
    }
}

}  // namespace CapabilitySet::json
