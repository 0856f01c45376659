// Spoils a sound XML document.
// SPDX-License-Identifier: Apache-2.0
#include "Device/hostile/HostileXml.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <vector>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace Device
{
namespace
{

std::string Copied(xmlChar* text)
{
    const std::unique_ptr<xmlChar, void (*)(void*)> owner(text, xmlFree);
    return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

std::string Escaped(const std::string& text)
{
    return Copied(xmlEncodeSpecialChars(nullptr, reinterpret_cast<const xmlChar*>(text.c_str())));
}

std::string Name(const xmlChar* name)
{
    return name == nullptr ? std::string() : reinterpret_cast<const char*>(name);
}

class Writer
{
public:
    explicit Writer(const XmlSpoiling& spoiling) : spoiling_(spoiling) {}

    void Element(xmlNode* element)
    {
        const std::string name = Name(element->name);
        out_ += '<' + name;
        for (xmlAttr* attribute = element->properties; attribute != nullptr;
             attribute = attribute->next) {
            out_ += ' ' + Name(attribute->name) + "=\"" +
                    Value(Copied(xmlNodeGetContent(reinterpret_cast<xmlNode*>(attribute)))) + '"';
        }
        out_ += '>';
        Children(element);
        out_ += "</" + name + '>';
    }

    std::string Take() { return std::move(out_); }

private:
    [[nodiscard]] std::string Value(const std::string& text) const
    {
        return !spoiling_.number.empty() && IsDecimal(text) ? spoiling_.number : Escaped(text);
    }

    void Children(xmlNode* element)
    {
        std::vector<xmlNode*> children;
        for (xmlNode* node = element->children; node != nullptr; node = node->next) {
            if (node->type == XML_ELEMENT_NODE) {
                children.push_back(node);
            }
        }
        if (children.empty()) {
            const std::string text = Value(Copied(xmlNodeGetContent(element)));
            out_ += spoiling_.text && !text.empty() ? spoiling_.text(text) : text;
            return;
        }
        if (spoiling_.reverse) {
            std::ranges::reverse(children);
        }
        for (xmlNode* child : children) {
            for (int i = 0; i < spoiling_.copies; ++i) {
                out_ += spoiling_.between;
                Element(child);
            }
        }
        out_ += spoiling_.between;
    }

    const XmlSpoiling& spoiling_;
    std::string out_;
};

}  // namespace

bool IsDecimal(const std::string& text)
{
    return !text.empty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::string SpoilXml(const std::string& sample, const XmlSpoiling& spoiling)
{
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        sample.size() > INT_MAX
            ? nullptr
            : xmlReadMemory(sample.data(), static_cast<int>(sample.size()), nullptr, nullptr,
                            XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
        &xmlFreeDoc);
    xmlNode* root = document ? xmlDocGetRootElement(document.get()) : nullptr;
    if (root == nullptr) {
        return {};
    }
    Writer writer(spoiling);
    writer.Element(root);
    return writer.Take();
}

}  // namespace Device
