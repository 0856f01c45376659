// A small document and its nodes, for tests of node readers.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <stdexcept>
#include <string>

#include <libxml/parser.h>
#include <libxml/tree.h>

namespace TestSupport
{

/// Parsed with libxml2's defaults, not with the library's context.
class XmlTree
{
public:
    explicit XmlTree(const std::string& text)
        : document_(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                  XML_PARSE_NOERROR | XML_PARSE_NOWARNING),
                    xmlFreeDoc)
    {
        if (document_ == nullptr) {
            throw std::runtime_error("not well-formed: " + text);
        }
    }

    [[nodiscard]] xmlNode* Root() const { return xmlDocGetRootElement(document_.get()); }
    [[nodiscard]] xmlNode* First() const { return Root()->children; }

private:
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> document_;
};

}  // namespace TestSupport
