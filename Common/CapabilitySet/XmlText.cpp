// Any XML document a device sends, whatever record it may be: as elements, or indented for people.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/XmlText.h"

#include <memory>

#include "CapabilitySet/private/xml/ElementTree.h"
#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet
{
namespace
{

bool IsBlankText(const xmlNode* node)
{
    return node->type == XML_TEXT_NODE &&
           xml::XmlCharToString(node->content).find_first_not_of(" \t\r\n") == std::string::npos;
}

/// Drops the blanks between elements, which would keep the writer from indenting. Recursion is
/// safe: the parser refuses documents deeper than 256 elements.
void DropIndentation(xmlNode* element)
{
    bool isMixed = false;
    bool holdsElements = false;
    for (const xmlNode* child = element->children; child != nullptr; child = child->next) {
        holdsElements = holdsElements || child->type == XML_ELEMENT_NODE;
        isMixed = isMixed || (child->type == XML_TEXT_NODE && !IsBlankText(child));
    }
    xmlNode* next = nullptr;
    for (xmlNode* child = element->children; child != nullptr; child = next) {
        next = child->next;
        if (child->type == XML_ELEMENT_NODE) {
            DropIndentation(child);
        } else if (holdsElements && !isMixed && IsBlankText(child)) {
            xmlUnlinkNode(child);
            xmlFreeNode(child);
        }
    }
}

}  // namespace

AbilityElement ElementsOf(const std::string& text)
{
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
    const xmlNode* const root =
        document == nullptr ? nullptr : xmlDocGetRootElement(document.get());
    return root == nullptr ? AbilityElement() : xml::CopyElement(root);
}

std::string IndentedXml(const std::string& text)
{
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
    if (document == nullptr) {
        return {};
    }
    DropIndentation(xmlDocGetRootElement(document.get()));
    xmlChar* indented = nullptr;
    int size = 0;
    xmlDocDumpFormatMemoryEnc(document.get(), &indented, &size, "UTF-8", 1);
    const std::unique_ptr<xmlChar, void (*)(void*)> owner(indented, xmlFree);
    return indented == nullptr ? std::string()
                               : std::string(reinterpret_cast<const char*>(indented),
                                             static_cast<std::size_t>(size));
}

}  // namespace CapabilitySet
