// Reading JSON answers: the text into a tree, and members without a presence test.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <new>
#include <sstream>
#include <string>
#include <string_view>

#include <json/reader.h>
#include <json/value.h>
#include <json/writer.h>

#include "CapabilitySet/private/ThrowScope.h"

namespace CapabilitySet::json
{

/// Parses a text with the reader's default features, comments collected.
inline bool ParseText(std::string_view text, Json::Value& root)
{
    Json::Reader reader;
    return reader.parse(text.data(), text.data() + text.size(), root, true);
}

/// A tree as indented text, a line end behind it.
inline std::string StyledText(const Json::Value& value)
{
    // Not value.toStyledString(): there memory that runs out cuts the text short, in silence.
    std::ostringstream text;
    text.exceptions(std::ios::badbit);
    const Json::StreamWriterBuilder builder;
    const std::unique_ptr<Json::StreamWriter> writer(builder.newStreamWriter());
    writer->write(value, &text);
    text << '\n';
    return text.str();
}

/// A member of an object; null when there is none. Throws what JsonCpp throws for a value that can
/// have no members.
inline const Json::Value& MemberOf(const Json::Value& object, std::string_view name)
{
    const Json::Value* const member = object.find(name.data(), name.data() + name.size());
    return member == nullptr ? Json::Value::nullSingleton() : *member;
}

/// Throws what JsonCpp throws for a value that cannot have members; null passes, it has none.
inline void RequireObject(const Json::Value& value)
{
    static_cast<void>(MemberOf(value, {}));
}

/// Hands the root of an answer to `read`. An empty text and one that is not JSON read nothing; an
/// exception, such as JsonCpp's for a member of the wrong kind, ends the reading and goes nowhere
/// (but see ThrowScope).
template <class Read>
void WithRoot(const std::string& text, Read&& read)
{
    if (text.empty()) {
        return;
    }
    try {
        Json::Value root;
        // Where memory fails JsonCpp takes a decimal number for a malformed one: asked again, it
        // reads the text or runs out of memory for good.
        if (ParseText(text, root) || (ThrowScope::Active() && ParseText(text, root))) {
            // A part that reads a text of its own ends the whole reading when memory runs out.
            const ThrowScope parts;
            read(root);
        }
    } catch (const std::bad_alloc&) {
        if (ThrowScope::Active()) {
            throw;
        }
    } catch (const Json::RuntimeError& error) {
        // What JsonCpp makes of a malloc that failed; the other one is a text too deep to parse.
        if (ThrowScope::Active() &&
            std::string_view(error.what()).find("allocate") != std::string_view::npos) {
            throw std::bad_alloc();
        }
    } catch (...)  // what was read before stays; answers never throw at the client
    {
    }
}

}  // namespace CapabilitySet::json
