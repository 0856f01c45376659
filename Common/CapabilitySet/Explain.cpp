// Explains how a text was read as a record: what the record holds, and what it did not take.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/Explain.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <utility>

#include <json/value.h>

#include "CapabilitySet/OptionTypes.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/json/JsonReading.h"
#include "CapabilitySet/private/xml/FieldIndex.h"
#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet
{
namespace
{

const char* NameOf(const xmlNode* element)
{
    return reinterpret_cast<const char*>(element->name);
}

/// Calls `visit(element, position)` for each element from `firstChild` on.
template <class Visit>
void ForEachElement(xmlNode* firstChild, Visit&& visit)
{
    std::size_t position = 0;
    for (xmlNode* node = firstChild; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE) {
            visit(node, ++position);
        }
    }
}

/// Calls `visit(element)` for each element of a list, which all have one name.
template <class Visit>
void ForEachItem(xmlNode* first, const char* name, Visit&& visit)
{
    for (xmlNode* item = first; xml::NextElementNamed(item, name); item = item->next) {
        visit(item);
    }
}

/// The items of a field that was found: its own element or elements, or those inside it.
template <class Visit>
void ForEachItem(const FieldShape& field, xmlNode* element, Visit&& visit)
{
    if (field.item != nullptr) {
        ForEachItem(element->children, field.item, visit);
    } else if (field.isRepeated) {
        ForEachItem(element, field.name, visit);
    } else {
        visit(element);
    }
}

/// The look-ups of the records that a document was read as.
class Indexes
{
public:
    const xml::FieldIndex& Of(const RecordShape& shape)
    {
        const auto [entry, isNew] = indexes_.try_emplace(&shape);
        if (isNew) {
            for (const FieldShape& field : shape.fields) {
                entry->second.Add(field.name, field.isRepeated);
            }
            entry->second.Finish();
        }
        return entry->second;
    }

private:
    std::map<const RecordShape*, xml::FieldIndex> indexes_;
};

/// Where reading a field ended: at its element, or at the last item of a list.
struct End
{
    std::size_t position = 0;  ///< 0: the field was not read
    const xmlNode* element = nullptr;
};

std::vector<End> EndsOfFields(const xml::FieldIndex& index, const xml::FieldMatches& matches,
                              xmlNode* firstChild)
{
    std::vector<End> ends(index.Size());
    ForEachElement(firstChild, [&](const xmlNode* element, std::size_t position) {
        const std::size_t field = index.Find(NameOf(element));
        if (field == xml::FieldIndex::kNone) {
            return;
        }
        if (matches[field] == element || (index.IsRepeated(field) && ends[field].position != 0)) {
            ends[field] = {position, element};
        }
    });
    return ends;
}

/// Finds for one record, in the whole of a document, what it did not take.
class Explainer
{
public:
    std::vector<Untaken> untaken;

    void Explain(const RecordShape& shape, xmlNode* firstChild, const std::string& path)
    {
        const xml::FieldIndex& index = indexes_.Of(shape);
        const xml::FieldMatches matches(index, firstChild);
        ExplainPassedOver(index, matches, firstChild, path);
        for (std::size_t i = 0; i < shape.fields.size(); ++i) {
            if (matches[i] != nullptr) {
                ExplainField(shape.fields[i], matches[i], path);
            }
        }
    }

private:
    void Add(const xmlNode* element, const std::string& path, std::string reason)
    {
        untaken.push_back(
            {path + xml::XmlCharToString(element->name), xmlGetLineNo(element), std::move(reason)});
    }

    void ExplainField(const FieldShape& field, xmlNode* element, const std::string& path)
    {
        std::string below = path + field.name + "/";
        if (field.item != nullptr) {
            ForEachElement(element->children, [&](const xmlNode* child, std::size_t /*position*/) {
                if (std::strcmp(NameOf(child), field.item) != 0) {
                    Add(child, below, "unknown");
                }
            });
            below += std::string(field.item) + "/";
        }
        if (field.record != nullptr) {
            ForEachItem(field, element, [&](const xmlNode* item) {
                Explain(*field.record, item->children, below);
            });
        }
    }

    void ExplainPassedOver(const xml::FieldIndex& index, const xml::FieldMatches& matches,
                           xmlNode* firstChild, const std::string& path)
    {
        const std::vector<End> ends = EndsOfFields(index, matches, firstChild);
        std::vector<bool> begun(index.Size());
        std::vector<const xmlNode*> passed;
        std::map<const xmlNode*, const xmlNode*> causes;
        std::map<const xmlNode*, std::vector<const xmlNode*>> lostTo;
        ForEachElement(firstChild, [&](const xmlNode* element, std::size_t position) {
            const std::size_t field = index.Find(NameOf(element));
            const bool isKnown = field != xml::FieldIndex::kNone;
            const bool isFirst = isKnown && matches[field] == element;
            if (isFirst || (isKnown && index.IsRepeated(field) && begun[field])) {
                begun[field] = true;
                return;
            }
            passed.push_back(element);
            // Only a field that is read earlier and stands further on makes reading go past.
            for (std::size_t earlier = 0; isKnown && earlier < field; ++earlier) {
                if (ends[earlier].position > position) {
                    causes[element] = ends[earlier].element;
                    lostTo[ends[earlier].element].push_back(element);
                    return;
                }
            }
        });
        for (const xmlNode* const element : passed) {
            const auto cause = causes.find(element);
            if (cause == causes.end()) {
                const bool isKnown = index.Find(NameOf(element)) != xml::FieldIndex::kNone;
                Add(element, path, isKnown ? "only the first of this name is read" : "unknown");
            } else if (const auto& lost = lostTo[cause->second]; lost.front() == element) {
                AddMisplaced(cause->second, lost, path);
            }
        }
    }

    /// One element in the wrong place can cost all those before it: that one is what people have to
    /// know about.
    void AddMisplaced(const xmlNode* misplaced, const std::vector<const xmlNode*>& lost,
                      const std::string& path)
    {
        if (lost.size() == 1) {
            return Add(lost.front(), path,
                       std::string("out of order: stands before ") + NameOf(misplaced) +
                           ", which is read first");
        }
        constexpr std::size_t kNamed = 3;
        std::string names;
        for (std::size_t i = 0; i < std::min(lost.size(), kNamed); ++i) {
            names += (i == 0 ? "" : ", ") + std::string(NameOf(lost[i]));
        }
        if (lost.size() > kNamed) {
            names += " and " + std::to_string(lost.size() - kNamed) + " more";
        }
        Add(misplaced, path,
            "out of order: read before the " + std::to_string(lost.size()) +
                " elements in front of it, which were lost: " + names);
        untaken.back().count = lost.size();
    }

    Indexes indexes_;
};

template <class WordOf>
void Spell(RecordNode& node, const WordOf& wordOf)
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

using HandleType = AlarmHandleType;
constexpr std::pair<HandleType::HandleType, const char*> kHandleTypes[] = {
    {HandleType::Monitor, "monitor"},     {HandleType::Audio, "audio"},
    {HandleType::Center, "center"},       {HandleType::AlarmOut, "alarmout"},
    {HandleType::Picture, "picture"},     {HandleType::WirelessLight, "wirelesslight"},
    {HandleType::UploadFtp, "uploadftp"},
};

/// Replaces codes by the options that they stand for.
void SpellCodes(RecordNode& node, const FieldShape& field)
{
    if (field.codes != nullptr) {
        Spell(node, [&field](const std::string& code) {
            const auto& entries = field.codes->entries;
            const auto found = std::ranges::find_if(
                entries, [&code](const auto& entry) { return std::to_string(entry.code) == code; });
            return found == entries.end() ? std::string() : std::string(found->option);
        });
    } else if (field.holdsHandleTypes) {
        Spell(node, [](const std::string& code) {
            for (const auto& [type, word] : kHandleTypes) {
                if (std::to_string(type) == code) {
                    return std::string(word);
                }
            }
            return std::string();
        });
    }
}

/// Whether a value is what a record holds before it is read.
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

void Adapt(RecordNode& shown, const RecordShape& shape, xmlNode* firstChild, Indexes& indexes);

/// Adapts the nodes of the records that a field holds, each to its element.
void AdaptRecords(RecordNode& node, const FieldShape& field, xmlNode* element, Indexes& indexes)
{
    if (node.kind != RecordNode::Kind::List) {
        return Adapt(node, *field.record, element->children, indexes);
    }
    auto item = node.children.begin();
    ForEachItem(field, element, [&](const xmlNode* each) {
        if (item != node.children.end()) {
            Adapt(*item++, *field.record, each->children, indexes);
        }
    });
}

/// Spells out the codes of `shown`, and marks the members that found no element among these and
/// hold their defaults.
void Adapt(RecordNode& shown, const RecordShape& shape, xmlNode* firstChild, Indexes& indexes)
{
    if (shown.children.size() != shape.fields.size()) {
        return;  // no record is there
    }
    const xml::FieldMatches matches(indexes.Of(shape), firstChild);
    for (std::size_t i = 0; i < shape.fields.size(); ++i) {
        RecordNode& child = shown.children[i];
        SpellCodes(child, shape.fields[i]);
        if (matches[i] == nullptr) {
            child.announced = child.announced && !IsDefault(child);
        } else if (shape.fields[i].record != nullptr) {
            AdaptRecords(child, shape.fields[i], matches[i], indexes);
        }
    }
}

std::string WithoutLineEnd(std::string text)
{
    text.erase(text.find_last_not_of(" \t\r\n") + 1);
    return text;
}

/// Why a text is no XML document; empty when `document` is one.
std::string ParseProblem(const std::string& text, xml::Document& document)
{
    if (text.empty()) {
        return "it is empty";
    }
    xml::Problem problem;
    document = xml::ParseText(text, xml::Form::Plain, problem);
    if (document != nullptr) {
        return {};
    }
    const std::string message = WithoutLineEnd(problem.message);
    const std::string place =
        problem.line > 0 ? "line " + std::to_string(problem.line) + ": " : std::string();
    return "it is no XML document that can be read (" + place +
           (message.empty() ? "no reason is known" : message) + ")";
}

std::string JsonProblem(const std::string& text, const std::string& key)
{
    if (text.empty()) {
        return "it is empty";
    }
    Json::Value document;
    try {
        if (!json::ParseText(text, document)) {
            document = {};
        }
    } catch (const Json::Exception&) {  // too deep
    }
    if (!document.isObject()) {
        return "it is no JSON object";
    }
    return key.empty() || document.isMember(key) ? std::string() : "it has no \"" + key + "\"";
}

}  // namespace

Reading ExplainXml(RecordNode values, const std::string& text, const char* rootName,
                   const RecordShape* shape, const char* requestRoot)
{
    Reading reading{.problem = {}, .values = std::move(values), .shown = {}, .untaken = {}};
    reading.shown = reading.values;
    xml::Document document;
    reading.problem = ParseProblem(text, document);
    if (document == nullptr) {
        return reading;
    }
    const xmlNode* const root = xmlDocGetRootElement(document.get());
    const std::string name = root == nullptr ? std::string() : xml::XmlCharToString(root->name);
    if (name != rootName && (requestRoot == nullptr || name != requestRoot)) {
        reading.problem =
            "its root element is \"" + name + "\", not \"" + std::string(rootName) + "\"";
    } else if (shape != nullptr) {
        Indexes indexes;
        Adapt(reading.shown, *shape, root->children, indexes);
        Explainer explainer;
        explainer.Explain(*shape, root->children, {});
        reading.untaken = std::move(explainer.untaken);
    }
    return reading;
}

Reading ExplainJson(RecordNode values, const std::string& text, const std::string& key)
{
    Reading reading{
        .problem = JsonProblem(text, key), .values = std::move(values), .shown = {}, .untaken = {}};
    reading.shown = reading.values;
    return reading;
}

}  // namespace CapabilitySet
