// Reads a record from an XML text and tells what the text held beside it.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/XmlReadingReport.h"

#include <algorithm>
#include <utility>

#include "CapabilitySet/OptionTypes.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "Tool/terminal/Text.h"

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

namespace
{

template <class WordOf>
void Spell(RecordNode& node, WordOf&& wordOf)
{
    if (node.kind == RecordNode::Kind::List) {
        for (RecordNode& item : node.children) {
            Spell(item, wordOf);
        }
    } else if (const std::string word = wordOf(node.text);
               node.kind == RecordNode::Kind::Number && !word.empty()) {
        node.kind = RecordNode::Kind::Text;
        node.text = word;
    }
}

using HandleType = CapabilitySet::AlarmHandleType;
constexpr std::pair<HandleType::HandleType, const char*> kHandleTypes[] = {
    {HandleType::Monitor, "monitor"},     {HandleType::Audio, "audio"},
    {HandleType::Center, "center"},       {HandleType::AlarmOut, "alarmout"},
    {HandleType::Picture, "picture"},     {HandleType::WirelessLight, "wirelesslight"},
    {HandleType::UploadFtp, "uploadftp"},
};

}  // namespace

void SpellCodes(RecordNode& node, CapabilitySet::as::Codes how)
{
    Spell(node, [&how](const std::string& code) {
        for (const auto& entry : how.table.entries) {
            if (std::to_string(entry.code) == code) {
                return std::string(entry.option);
            }
        }
        return std::string();
    });
}

void SpellCodes(RecordNode& node, CapabilitySet::as::HandleTypes /*how*/)
{
    Spell(node, [](const std::string& code) {
        for (const auto& [type, word] : kHandleTypes) {
            if (std::to_string(type) == code) {
                return std::string(word);
            }
        }
        return std::string();
    });
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
