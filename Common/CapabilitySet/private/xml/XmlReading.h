// Reads libxml2 trees: the forward cursor, texts in place, and values.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <libxml/tree.h>

#include "CapabilitySet/private/NumberText.h"
#include "CapabilitySet/private/ThrowScope.h"

namespace CapabilitySet::xml
{

/// Finds the next element of this name (exact, ignoring namespaces), starting with the node under
/// the cursor. On true the cursor is moved there; on false it stays.
bool NextElementNamed(xmlNode*& cursor, const char* name);

/// The text of a node, viewed in place if it is a single piece and copied to `spare` otherwise.
/// Valid while the document and `spare` exist. Empty for null. Throws std::bad_alloc.
std::string_view TextOf(const xmlNode* node, std::string& spare);

/// The text of an attribute, in the same way; false if the element does not have it.
bool AttributeOf(const xmlNode* element, const char* name, std::string& spare,
                 std::string_view& value);

std::string XmlCharToString(const xmlChar* text);
std::string GetNodeString(const xmlNode* node);
int GetNodeInt(const xmlNode* node);
unsigned int GetNodeUInt(const xmlNode* node);
/// True for exactly "true" and "1".
bool GetNodeBool(const xmlNode* node);

/// Replaces `target` with the non-empty pieces of a comma-separated text.
void SplitOptions(std::vector<std::string>& target, std::string_view text);

/// Reads the attributes "min" and "max"; true if both hold text. A bound without text is left
/// unchanged.
bool ReadBounds(const xmlNode* element, unsigned int& min, unsigned int& max);

/// Runs `read`, which may throw. Without a ThrowScope the exception ends here; a failure in a
/// nested record ends the reading of the outermost one.
template <class Read>
void EndAtException(Read&& read)
{
    if (ThrowScope::Active()) {
        return read();
    }
    const ThrowScope nested;
    try {
        read();
    } catch (...)  // what was read stays; nothing is thrown at clients
    {
    }
}

}  // namespace CapabilitySet::xml
