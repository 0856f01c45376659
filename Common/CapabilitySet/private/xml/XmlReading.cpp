// Reads libxml2 trees: the forward cursor, texts in place, and values.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlReading.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "CapabilitySet/private/xml/QuietLibxml.h"

namespace CapabilitySet::xml
{
namespace
{

struct XmlTextFree
{
    void operator()(xmlChar* text) const { xmlFree(text); }
};
using XmlText = std::unique_ptr<xmlChar, XmlTextFree>;

const char* Chars(const xmlChar* text)
{
    return reinterpret_cast<const char*>(text);
}

/// Whether the children are a single text, which can be viewed in place.
bool IsOnePiece(const xmlNode* child)
{
    return child->next == nullptr &&
           (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE);
}

std::string_view View(const xmlChar* text)
{
    return text == nullptr ? std::string_view{} : std::string_view{Chars(text)};
}

/// Copies a text; throws if memory ran out, when libxml2 returns null or a shortened copy.
template <class Copy>
std::string_view Keep(Copy&& copy, std::string& spare)
{
    const QuietLibxml quiet;
    const XmlText text(copy());
    if (text == nullptr || QuietLibxml::RanOutOfMemory()) {
        throw std::bad_alloc();
    }
    spare = View(text.get());
    return spare;
}

}  // namespace

bool NextElementNamed(xmlNode*& cursor, const char* name)
{
    for (xmlNode* node = cursor; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE && std::strcmp(Chars(node->name), name) == 0) {
            cursor = node;
            return true;
        }
    }
    return false;
}

std::string_view TextOf(const xmlNode* node, std::string& spare)
{
    if (node == nullptr) {
        return {};
    }
    if (node->children == nullptr) {
        return View(node->type == XML_PI_NODE ? node->content : nullptr);
    }
    if (IsOnePiece(node->children)) {
        return View(node->children->content);
    }
    return Keep([node] { return xmlNodeGetContent(node); }, spare);
}

bool AttributeOf(const xmlNode* element, const char* name, std::string& spare,
                 std::string_view& value)
{
    // In a compact tree, text nodes use the field in which elements keep their attributes.
    const xmlAttr* attribute = element->type == XML_ELEMENT_NODE ? element->properties : nullptr;
    while (attribute != nullptr && std::strcmp(Chars(attribute->name), name) != 0) {
        attribute = attribute->next;
    }
    if (attribute != nullptr && attribute->children == nullptr) {
        value = {};
        return true;
    }
    if (attribute != nullptr && IsOnePiece(attribute->children)) {
        value = View(attribute->children->content);
        return true;
    }
    // The attribute consists of pieces, or gets its value from the document type.
    const auto* key = reinterpret_cast<const xmlChar*>(name);
    if (attribute == nullptr && (element->doc == nullptr || element->doc->intSubset == nullptr ||
                                 xmlHasProp(element, key) == nullptr)) {
        return false;
    }
    value = Keep([=] { return xmlGetProp(element, key); }, spare);
    return true;
}

std::string XmlCharToString(const xmlChar* text)
{
    return std::string(View(text));
}

std::string GetNodeString(const xmlNode* node)
{
    std::string spare;
    return std::string(TextOf(node, spare));
}

int GetNodeInt(const xmlNode* node)
{
    std::string spare;
    return StringToInt(TextOf(node, spare));
}

unsigned int GetNodeUInt(const xmlNode* node)
{
    std::string spare;
    return StringToUInt(TextOf(node, spare));
}

bool GetNodeBool(const xmlNode* node)
{
    std::string spare;
    const std::string_view text = TextOf(node, spare);
    return text == "true" || text == "1";
}

void SplitOptions(std::vector<std::string>& target, std::string_view text)
{
    target.clear();
    while (!text.empty()) {
        const std::size_t comma = std::min(text.find(','), text.size());
        if (comma > 0) {
            target.emplace_back(text.substr(0, comma));
        }
        text.remove_prefix(std::min(comma + 1, text.size()));
    }
}

bool ReadBounds(const xmlNode* element, unsigned int& min, unsigned int& max)
{
    const auto bound = [element](const char* name, unsigned int& value) {
        std::string spare;
        std::string_view text;
        if (!AttributeOf(element, name, spare, text) || text.empty()) {
            return false;
        }
        value = StringToUInt(text);
        return true;
    };
    const bool hasMin = bound("min", min);
    const bool hasMax = bound("max", max);
    return hasMin && hasMax;
}

}  // namespace CapabilitySet::xml
