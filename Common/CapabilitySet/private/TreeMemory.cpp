// Estimates what a document's tree will take before it is built.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/TreeMemory.h"

namespace CapabilitySet
{

std::size_t XmlTreeBytes(std::string_view text)
{
    // Blocks of the allocator, for xmlNode and xmlAttr.
    constexpr std::size_t kNode = 128;
    constexpr std::size_t kAttribute = 112;
    std::size_t nodes = 0;
    std::size_t attributes = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '<') {
            // An element, and the text after its start or its end.
            nodes += i + 1 < text.size() && text[i + 1] == '/' ? 1 : 2;
        } else if (text[i] == '=') {
            ++attributes;
        }
    }
    return text.size() + nodes * kNode + attributes * (kAttribute + kNode);
}

std::size_t JsonTreeBytes(std::string_view text)
{
    // Blocks of the allocator, for an entry of an array or object and for the map that holds them.
    constexpr std::size_t kEntry = 112;
    constexpr std::size_t kMap = 64;
    std::size_t entries = 0;
    std::size_t maps = 0;
    bool inString = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (inString) {
            i += c == '\\' ? 1 : 0;
            inString = c != '"';
        } else if (c == '"') {
            inString = true;
        } else if (c == ',') {
            ++entries;
        } else if (c == '{' || c == '[') {
            ++entries;
            ++maps;
        }
    }
    return text.size() + entries * kEntry + maps * kMap;
}

}  // namespace CapabilitySet
