// Lists in XML documents.
// SPDX-License-Identifier: Apache-2.0
#include "Device/search/DocumentPages.h"

#include <map>
#include <vector>

#include <libxml/tree.h>

#include "Device/document/Text.h"
#include "Device/document/XmlTree.h"
#include "Device/search/Page.h"

namespace Device
{
namespace
{

// All items have the same parent.
std::vector<_xmlNode*> ItemsOf(const XmlTree& tree, std::string_view name)
{
    std::vector<_xmlNode*> items;
    for (_xmlNode* item = FindElement(RootOf(tree), name); item != nullptr;
         item = ElementFrom(item->next, name)) {
        items.push_back(item);
    }
    return items;
}

void Remove(_xmlNode* element)
{
    xmlUnlinkNode(element);
    xmlFreeNode(element);
}

void Fill(_xmlNode* root, std::string_view name, const std::string& text)
{
    _xmlNode* element = ElementFrom(root->children, name);
    if (element == nullptr) {
        return;
    }
    xmlNodeSetContent(element, nullptr);
    xmlNodeAddContent(element, reinterpret_cast<const xmlChar*>(text.c_str()));
}

size_t NumberIn(_xmlNode* root, std::string_view name, size_t otherwise)
{
    int number = 0;
    return ReadNumber(ChildText(root, name), number) && number >= 0 ? static_cast<size_t>(number)
                                                                    : otherwise;
}

}  // namespace

std::string MakePage(const std::string& document, const Paging& paging, std::string_view search)
{
    const XmlTree tree = ReadXmlTree(document);
    const XmlTree asked = ReadXmlTree(search);
    if (!tree || !asked) {
        return document;
    }
    const std::vector<_xmlNode*> items = ItemsOf(tree, paging.item);
    const Page page = PageOf(items.size(), NumberIn(RootOf(asked), paging.position, 0),
                             NumberIn(RootOf(asked), paging.size, items.size()));
    for (size_t i = 0; i < items.size(); ++i) {
        if (i < page.first || i >= page.first + page.count) {
            Remove(items[i]);
        }
    }
    Fill(RootOf(tree), "searchID", ChildText(RootOf(asked), "searchID"));
    Fill(RootOf(tree), "responseStatusStrg", page.status);
    Fill(RootOf(tree), "numOfMatches", std::to_string(page.count));
    Fill(RootOf(tree), "totalMatches", std::to_string(items.size()));
    return WriteXmlTree(*tree);
}

std::string MergeItems(const std::string& document, std::string_view changes, std::string_view item,
                       std::string_view key)
{
    const XmlTree tree = ReadXmlTree(document);
    const XmlTree changed = ReadXmlTree(changes);
    if (!tree || !changed) {
        return document;
    }
    std::map<std::string, _xmlNode*> known;
    for (_xmlNode* own : ItemsOf(tree, item)) {
        known.emplace(ChildText(own, key), own);
    }
    for (_xmlNode* change : ItemsOf(changed, item)) {
        _xmlNode* copy = xmlDocCopyNode(change, tree.get(), 1);
        if (copy == nullptr) {
            continue;
        }
        const std::string id = ChildText(change, key);
        const auto own = known.find(id);
        if (own == known.end()) {
            xmlAddChild(known.empty() ? RootOf(tree) : known.begin()->second->parent, copy);
            known.emplace(id, copy);
            continue;
        }
        xmlReplaceNode(own->second, copy);
        xmlFreeNode(own->second);
        own->second = copy;
    }
    return WriteXmlTree(*tree);
}

}  // namespace Device
