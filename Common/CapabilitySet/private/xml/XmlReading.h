// Reading libxml2 trees: the forward cursor, texts in place, and values from them.
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

/// From the node under the cursor on, itself included, finds the next element of this name
/// (exact, case-sensitive, namespaces ignored). True: the cursor stands on it; false: it stays.
bool NextElementNamed(xmlNode*& cursor, const char* name);

/// The text of a node, viewed in place when it is one piece; otherwise `spare` holds a copy. Valid
/// while both the document and `spare` live. Empty for a null node. Throws std::bad_alloc.
std::string_view TextOf(const xmlNode* node, std::string& spare);

/// An attribute's text, in the same manner; false when the element has no such attribute.
bool AttributeOf(const xmlNode* element, const char* name, std::string& spare,
                 std::string_view& value);

std::string XmlCharToString(const xmlChar* text);
std::string GetNodeString(const xmlNode* node);
int GetNodeInt(const xmlNode* node);
unsigned int GetNodeUInt(const xmlNode* node);
/// True for exactly "true" and "1".
bool GetNodeBool(const xmlNode* node);

/// Replaces `target` by the non-empty pieces of `text` between commas.
void SplitOptions(std::vector<std::string>& target, std::string_view text);

/// The bounds in the attributes "min" and "max"; true when both are there and hold text. A bound
/// that holds none is left as it is.
bool ReadBounds(const xmlNode* element, unsigned int& min, unsigned int& max);

/// Runs `read`, which may throw. Unless a ThrowScope exists the exception ends here, so that a
/// failure in a nested record ends the reading of the whole one.
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
