// Reads JSON answers: parses the text, and finds members without testing for them.
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

/// Parses a text with the default features of the reader, collecting comments unless there are very
/// many. False if it is not JSON.
bool ParseText(std::string_view text, Json::Value& root);

/// Whether the tree of a text stays within limits::DocumentMemory; false after a log line.
bool IsWithinLimits(std::string_view text);

/// A tree as indented text with a trailing newline.
inline std::string StyledText(const Json::Value& value)
{
    // Not value.toStyledString(), which silently cuts the text short when memory runs out.
    std::ostringstream text;
    text.exceptions(std::ios::badbit);
    const Json::StreamWriterBuilder builder;
    const std::unique_ptr<Json::StreamWriter> writer(builder.newStreamWriter());
    writer->write(value, &text);
    text << '\n';
    return text.str();
}

/// A member of an object, null if there is none. Throws what JsonCpp throws for a value that cannot
/// have members.
inline const Json::Value& MemberOf(const Json::Value& object, std::string_view name)
{
    const Json::Value* const member = object.find(name.data(), name.data() + name.size());
    return member == nullptr ? Json::Value::nullSingleton() : *member;
}

/// Throws what JsonCpp throws for a value that cannot have members; null passes, it has none.
inline void RequireObject(const Json::Value& value)
{
    if (!value.isObject()) {
        static_cast<void>(MemberOf(value, ""));
    }
}

/// Passes the root of an answer to `read`. Empty text and text that is not JSON read nothing. An
/// exception, such as the one JsonCpp throws for a member of the wrong kind, ends the reading here;
/// only running out of memory inside a ThrowScope goes on to the caller.
template <class Read>
void WithRoot(const std::string& text, Read&& read)
{
    if (text.empty()) {
        return;
    }
    try {
        if (!IsWithinLimits(text)) {
            return;
        }
        Json::Value root;
        // When memory runs out, JsonCpp mistakes a decimal number for a malformed one. A second
        // attempt either reads the text or runs out of memory for good.
        if (ParseText(text, root) || (ThrowScope::Active() && ParseText(text, root))) {
            // Running out of memory in a part that parses its own text ends the whole reading.
            const ThrowScope parts;
            read(root);
        }
    } catch (const std::bad_alloc&) {
        if (ThrowScope::Active()) {
            throw;
        }
    } catch (const Json::RuntimeError& error) {
        // JsonCpp throws this for a failed malloc, and for a text nested too deeply.
        if (ThrowScope::Active() &&
            std::string_view(error.what()).find("allocate") != std::string_view::npos) {
            throw std::bad_alloc();
        }
    } catch (...)  // what was read stays; nothing is thrown at clients
    {
    }
}

}  // namespace CapabilitySet::json
