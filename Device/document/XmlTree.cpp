// XML trees.
// SPDX-License-Identifier: Apache-2.0
#include "Device/document/XmlTree.h"

#include <climits>
#include <new>

#include <libxml/parser.h>
#include <libxml/tree.h>

#include "Device/document/Text.h"

namespace Device
{
namespace
{

const xmlChar* XmlText(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

template <class Made>
Made* MustBe(Made* made)
{
    return made != nullptr ? made : throw std::bad_alloc();
}

}  // namespace

void FreeXmlTree::operator()(_xmlDoc* document) const
{
    xmlFreeDoc(document);
}

XmlTree ReadXmlTree(std::string_view text)
{
    if (text.size() > INT_MAX) {
        return nullptr;
    }
    return XmlTree(xmlReadMemory(
        text.data(), static_cast<int>(text.size()), nullptr, "UTF-8",
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOBLANKS));
}

std::string WriteXmlTree(_xmlDoc& document)
{
    xmlChar* text = nullptr;
    int length = 0;
    xmlDocDumpFormatMemoryEnc(&document, &text, &length, "UTF-8", 1);
    if (text == nullptr) {
        return {};
    }
    std::string out(reinterpret_cast<const char*>(text), static_cast<size_t>(length));
    xmlFree(text);
    return out;
}

XmlTree MakeXmlTree(const char* root, const char* version)
{
    XmlTree tree(MustBe(xmlNewDoc(XmlText("1.0"))));
    _xmlNode* element = MustBe(xmlNewDocNode(tree.get(), nullptr, XmlText(root), nullptr));
    xmlDocSetRootElement(tree.get(), element);
    MustBe(xmlNewProp(element, XmlText("version"), XmlText(version)));
    return tree;
}

_xmlNode* AddElement(_xmlNode* parent, const char* name, const std::string& text)
{
    return MustBe(xmlNewTextChild(parent, nullptr, XmlText(name),
                                  text.empty() ? nullptr : XmlText(text.c_str())));
}

_xmlNode* RootOf(const XmlTree& tree)
{
    return xmlDocGetRootElement(tree.get());
}

_xmlNode* ElementFrom(_xmlNode* node, std::string_view name)
{
    while (node != nullptr &&
           (node->type != XML_ELEMENT_NODE || (!name.empty() && NameOf(node) != name))) {
        node = node->next;
    }
    return node;
}

_xmlNode* FindElement(_xmlNode* node, std::string_view name)
{
    for (_xmlNode* child = ElementFrom(node->children); child != nullptr;
         child = ElementFrom(child->next)) {
        if (NameOf(child) == name) {
            return child;
        }
        if (_xmlNode* found = FindElement(child, name)) {
            return found;
        }
    }
    return nullptr;
}

std::string_view NameOf(const _xmlNode* element)
{
    return reinterpret_cast<const char*>(element->name);
}

std::string TextOf(const _xmlNode* element)
{
    xmlChar* content = xmlNodeGetContent(element);
    if (content == nullptr) {
        return {};
    }
    std::string text(Trimmed(reinterpret_cast<const char*>(content)));
    xmlFree(content);
    return text;
}

std::string ChildText(const _xmlNode* element, std::string_view name)
{
    const _xmlNode* child = ElementFrom(element->children, name);
    return child == nullptr ? std::string() : TextOf(child);
}

}  // namespace Device
