// XML trees, for the few places where a device looks beyond a document's root.
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

/// Parses UTF-8 and drops white space between elements. Returns null if the text is malformed. Only
/// for texts that ReadRequestDocument accepted, because it refuses the dangerous ones.
XmlTree ReadXmlTree(std::string_view text);

/// Serialises the document as indented UTF-8.
std::string WriteXmlTree(_xmlDoc& document);

/// Makes a document that has only a root. Throws std::bad_alloc.
XmlTree MakeXmlTree(const char* root, const char* version);

/// Adds a child and escapes its text. Throws std::bad_alloc.
_xmlNode* AddElement(_xmlNode* parent, const char* name, const std::string& text = {});

/// The root element; never null for a parsed document.
_xmlNode* RootOf(const XmlTree& tree);

/// The first element with that name among `node` and its following siblings, or null. An empty
/// name matches any element.
_xmlNode* ElementFrom(_xmlNode* node, std::string_view name = {});

/// The first descendant of `node` with that name, in document order, or null.
_xmlNode* FindElement(_xmlNode* node, std::string_view name);

std::string_view NameOf(const _xmlNode* element);

/// The element's text without surrounding white space.
std::string TextOf(const _xmlNode* element);

/// The text of the first child element with that name, or nothing.
std::string ChildText(const _xmlNode* element, std::string_view name);

}  // namespace Device
