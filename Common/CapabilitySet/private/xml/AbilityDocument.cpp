// Copies the elements of a document, and finds them by path.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/AbilityDocument.h"

#include <algorithm>
#include <utility>

#include "CapabilitySet/private/xml/ElementTree.h"
#include "CapabilitySet/private/xml/XmlReading.h"

namespace CapabilitySet
{
namespace
{

std::string QualifiedName(const xmlNs* space, const char* name)
{
    std::string qualified;
    if (space != nullptr && space->prefix != nullptr) {
        qualified = xml::XmlCharToString(space->prefix) + ":";
    }
    return qualified + name;
}

void CopyAttributes(const xmlNode* node, AbilityElement& element)
{
    for (const xmlNs* space = node->nsDef; space != nullptr; space = space->next) {
        const std::string prefix = xml::XmlCharToString(space->prefix);
        element.attributes.emplace_back(prefix.empty() ? "xmlns" : "xmlns:" + prefix,
                                        xml::XmlCharToString(space->href));
    }
    for (const xmlAttr* attribute = node->properties; attribute != nullptr;
         attribute = attribute->next) {
        const char* const name = reinterpret_cast<const char*>(attribute->name);
        element.attributes.emplace_back(
            QualifiedName(attribute->ns, name),
            xml::GetNodeString(reinterpret_cast<const xmlNode*>(attribute)));
    }
}

}  // namespace

AbilityElement xml::CopyElement(const xmlNode* node)
{
    AbilityElement element;
    element.name = xml::XmlCharToString(node->name);
    CopyAttributes(node, element);
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            element.children.push_back(CopyElement(child));
        } else if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
            element.text += xml::XmlCharToString(child->content);
        }
    }
    const bool blank = element.text.find_first_not_of(" \t\r\n") == std::string::npos;
    if (blank && !element.children.empty()) {
        element.text.clear();
    }
    return element;
}

const AbilityElement& AbilityElement::Find(std::string_view path) const
{
    static const AbilityElement nothing;
    const AbilityElement* element = this;
    while (!path.empty()) {
        const std::size_t slash = std::min(path.find('/'), path.size());
        const std::string_view wanted = path.substr(0, slash);
        path.remove_prefix(std::min(slash + 1, path.size()));
        const auto child = std::find_if(element->children.begin(), element->children.end(),
                                        [wanted](const auto& each) { return each.name == wanted; });
        if (child == element->children.end()) {
            return nothing;
        }
        element = &*child;
    }
    return *element;
}

const std::string& AbilityElement::Attribute(std::string_view attribute) const
{
    static const std::string nothing;
    const auto found =
        std::find_if(attributes.begin(), attributes.end(),
                     [attribute](const auto& each) { return each.first == attribute; });
    return found == attributes.end() ? nothing : found->second;
}

void AbilityDocument::ParseElement(_xmlNode* element)
{
    if (element == nullptr) {
        return;
    }
    xml::EndAtException([&] {
        AbilityElement read = xml::CopyElement(element);
        if (read.children.empty()) {
            return;
        }
        root = std::move(read);
        capable = true;
    });
}

}  // namespace CapabilitySet
