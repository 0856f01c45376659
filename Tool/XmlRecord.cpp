// Reads a record from an XML text and tells what the text held beside it.
// SPDX-License-Identifier: Apache-2.0
#include "XmlRecord.h"

#include <algorithm>

#include "Text.h"

namespace Tool
{

using CapabilitySet::RecordNode;

std::string XmlProblem(const std::string& text, const char* rootName)
{
    namespace xml = CapabilitySet::xml;
    if (text.empty()) {
        return "it is empty";
    }
    xml::Problem problem;
    const xml::Document document = xml::ParseText(text, xml::Form::Plain, problem);
    if (document == nullptr) {
        const std::string message = Trimmed(problem.message);
        const std::string place =
            problem.line > 0 ? "line " + std::to_string(problem.line) + ": " : std::string();
        return "it is no XML document that can be read (" + place +
               (message.empty() ? "no reason is known" : message) + ")";
    }
    const xmlNode* const root = xmlDocGetRootElement(document.get());
    const std::string name = root == nullptr ? std::string() : xml::XmlCharToString(root->name);
    return name == rootName ? std::string()
                            : "its root element is \"" + name + "\", not \"" + rootName + "\"";
}

bool IsDefault(const RecordNode& node)
{
    switch (node.kind) {
        case RecordNode::Kind::Flag:
            return node.text == "false";
        case RecordNode::Kind::Number:
            return node.text == "0";
        case RecordNode::Kind::Text:
            return node.text.empty();
        case RecordNode::Kind::List:
            return node.children.empty();
        case RecordNode::Kind::Options:
        case RecordNode::Kind::Range:
            return !node.announced;
        case RecordNode::Kind::Record:
            return std::ranges::all_of(node.children, IsDefault);
    }
    return false;
}

}  // namespace Tool
