// XML as trees, for the few places where a device looks beyond a document's root.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <string_view>

struct _xmlDoc;
struct _xmlNode;

namespace Device
{

struct FreeXmlTree
{
    void operator()(_xmlDoc* document) const;
};
using XmlTree = std::unique_ptr<_xmlDoc, FreeXmlTree>;

/// Reads a document without the blanks between its elements; null when it is malformed. Meant for
/// texts that ReadRequestDocument takes: it has refused the dangerous ones.
XmlTree ReadXmlTree(std::string_view text);

/// The document as indented UTF-8.
std::string WriteXmlTree(_xmlDoc& document);

/// A document with nothing but a root; throws std::bad_alloc when memory runs out.
XmlTree MakeXmlTree(const char* root, const char* version);

/// Adds a child with that text, which is escaped; throws std::bad_alloc when memory runs out.
_xmlNode* AddElement(_xmlNode* parent, const char* name, const std::string& text = {});

/// The root element, which every document that was read has.
_xmlNode* RootOf(const XmlTree& tree);

/// The first element of that name among `node` and its following siblings, or null; an empty name
/// stands for any.
_xmlNode* ElementFrom(_xmlNode* node, std::string_view name = {});

/// The first element of that name below `node`, at any depth, in document order; or null.
_xmlNode* FindElement(_xmlNode* node, std::string_view name);

std::string_view NameOf(const _xmlNode* element);

/// The element's text without the blanks around it.
std::string TextOf(const _xmlNode* element);

/// The text of the first child element of that name; empty when there is none.
std::string ChildText(const _xmlNode* element, std::string_view name);

}  // namespace Device
