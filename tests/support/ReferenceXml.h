// A slow and plain reading of XML records, which the library's own is compared with.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <cstring>
#include <limits>
#include <locale>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/xml/XmlFields.h"
#include "support/AllRecords.h"

// What it shares with the library is the field lists and what records tell of themselves. It parses
// with libxml2's own entry points, copies every text, reads numbers through streams and searches
// one name after the other.

namespace TestSupport::reference
{

namespace as = CapabilitySet::as;
namespace xml = CapabilitySet::xml;

inline std::string Text(const xmlChar* text)
{
    return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

inline std::string Owned(xmlChar* text)
{
    const std::string copy = Text(text);
    xmlFree(text);
    return copy;
}

inline std::string ContentOf(const xmlNode* node)
{
    return Owned(xmlNodeGetContent(node));
}

inline std::optional<std::string> AttributeOf(const xmlNode* node, const char* name)
{
    const auto* key = reinterpret_cast<const xmlChar*>(name);
    if (xmlHasProp(node, key) == nullptr) {
        return std::nullopt;
    }
    return Owned(xmlGetProp(node, key));
}

template <class Number>
Number NumberOf(const std::string& text)
{
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    Number number{};
    stream >> number;
    return number;
}

inline std::vector<std::string> PiecesOf(const std::string& text)
{
    std::vector<std::string> pieces;
    std::istringstream stream(text);
    for (std::string piece; std::getline(stream, piece, ',');) {
        if (!piece.empty()) {
            pieces.push_back(piece);
        }
    }
    return pieces;
}

/// Moves the cursor to the next element of this name, where it stands included.
inline bool Find(const xmlNode*& cursor, const std::string& name)
{
    for (const xmlNode* node = cursor; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE && Text(node->name) == name) {
            cursor = node;
            return true;
        }
    }
    return false;
}

// Each way of reading an element; the result tells whether its record counts as read.

inline bool Read(const xmlNode* node, bool& flag, as::Plain /*how*/ = {})
{
    flag = ContentOf(node) == "true" || ContentOf(node) == "1";
    return true;
}

template <class Number>
    requires(std::is_arithmetic_v<Number> && !std::same_as<Number, bool>)
bool Read(const xmlNode* node, Number& number, as::Plain /*how*/ = {})
{
    number = NumberOf<Number>(ContentOf(node));
    return true;
}

inline bool Read(const xmlNode* node, std::string& text, as::Plain /*how*/ = {})
{
    text = ContentOf(node);
    return true;
}

/// Only a channel is read so; -1 is none.
inline bool Read(const xmlNode* node, unsigned& number, as::Quiet /*how*/)
{
    Read(node, number);
    return number != std::numeric_limits<unsigned>::max();
}

inline bool Read(const xmlNode* /*node*/, bool& flag, as::Presence /*how*/)
{
    return flag = true;
}

inline bool Read(const xmlNode* /*node*/, bool& flag, as::Marker /*how*/)
{
    flag = true;
    return false;
}

inline bool Read(const xmlNode* node, bool& flag, as::TextFlag /*how*/)
{
    flag = ContentOf(node) == "true";
    return true;
}

inline bool Read(const xmlNode* node, bool& flag, as::TrueOrFalse /*how*/)
{
    const std::string text = ContentOf(node);
    if (text == "true") {
        flag = true;
    }
    if (text == "false") {
        flag = false;
    }
    return true;
}

inline bool Read(const xmlNode* node, CapabilitySet::OptElement<std::string>& options,
                 as::Plain /*how*/ = {})
{
    if (const auto text = AttributeOf(node, "opt")) {
        options.opt = PiecesOf(*text);
        options.capable = true;
    }
    if (const auto text = AttributeOf(node, "attri")) {
        options.attri = PiecesOf(*text);
        options.capable = true;
    }
    return true;
}

inline CapabilitySet::OptElement<std::string> OptionsOf(const xmlNode* node)
{
    CapabilitySet::OptElement<std::string> options;
    Read(node, options);
    return options;
}

inline bool Read(const xmlNode* node, bool& flag, as::EnabledFlag /*how*/)
{
    const auto options = OptionsOf(node);
    if (options.opt.size() == 1) {
        flag = options.opt[0] == "true";
    }
    return options.capable;
}

inline bool Read(const xmlNode* node, bool& flag, as::FirstOption /*how*/)
{
    const auto options = OptionsOf(node);
    flag = !options.opt.empty() && options.opt[0] == "true";
    return options.capable;
}

inline bool Read(const xmlNode* node, std::vector<int>& codes, as::Codes how)
{
    codes.clear();
    const auto options = OptionsOf(node);
    for (const std::string& option : options.opt) {
        for (const auto& entry : how.table.entries) {
            if (entry.option == option) {
                codes.push_back(entry.code);
            }
        }
    }
    return options.capable;
}

/// No alarm query was made that would lend its login.
inline bool Read(const xmlNode* node,
                 std::vector<CapabilitySet::AlarmHandleType::HandleType>& types,
                 as::HandleTypes /*how*/)
{
    using Type = CapabilitySet::AlarmHandleType;
    const std::pair<const char*, Type::HandleType> names[] = {
        {"monitor", Type::Monitor},     {"audio", Type::Audio},
        {"center", Type::Center},       {"alarmout", Type::AlarmOut},
        {"picture", Type::Picture},     {"wirelesslight", Type::WirelessLight},
        {"uploadftp", Type::UploadFtp},
    };
    types.clear();
    const auto options = OptionsOf(node);
    for (const std::string& option : options.opt) {
        for (const auto& [name, type] : names) {
            if (option == name) {
                types.push_back(type);
            }
        }
    }
    return options.capable;
}

inline bool Read(const xmlNode* node, CapabilitySet::MinMaxElement& range, as::Attributes /*how*/)
{
    const std::string min = AttributeOf(node, "min").value_or("");
    const std::string max = AttributeOf(node, "max").value_or("");
    if (!min.empty()) {
        range.min = NumberOf<unsigned>(min);
    }
    if (!max.empty()) {
        range.max = NumberOf<unsigned>(max);
    }
    range.capable = !min.empty() && !max.empty() && (range.min != 0 || range.max != 0);
    return true;
}

inline bool Read(const xmlNode* node, CapabilitySet::MinMaxElement& range, as::Plain /*how*/ = {})
{
    const xmlNode* cursor = node->children;
    const auto bound = [&cursor](const char* name, unsigned& number) {
        if (!Find(cursor, name)) {
            return false;
        }
        const std::string text = ContentOf(cursor);
        cursor = cursor->next;
        if (!text.empty()) {
            number = NumberOf<unsigned>(text);
        }
        return !text.empty();
    };
    const bool hasMin = bound("Min", range.min);
    const bool hasMax = bound("Max", range.max);
    range.capable = hasMin && hasMax;
    range.hasDefault = range.capable && bound("Default", range.def);
    return true;
}

template <class Value>
bool Read(const xmlNode* node, Value& value, as::Noted<bool> how)
{
    how.flag = true;
    return Read(node, value);
}

template <CapabilitySet::HasFields Record>
bool Read(const xmlNode* node, Record& record, as::Plain how = {});

template <class Item>
bool Read(const xmlNode* node, std::shared_ptr<Item>& item)
{
    item = std::make_shared<Item>();
    return Read(node, *item);
}

/// One element of a list among a record's own.
template <class Item>
bool Read(const xmlNode* node, std::vector<Item>& items, as::Repeated /*how*/)
{
    items.emplace_back();
    return Read(node, items.back());
}

template <class Item>
bool Read(const xmlNode* node, std::vector<Item>& items, as::Items how)
{
    for (const xmlNode* cursor = node->children; Find(cursor, how.item); cursor = cursor->next) {
        Read(cursor, items, as::repeated);
    }
    return true;
}

/// Reads a record's fields, each from where the cursor finds it behind the one before.
template <class Record>
void ReadFrom(const xmlNode* cursor, Record& record)
{
    bool isRead = false;
    Record::Fields(record, [&](const char* name, auto& member, auto... how) {
        using Member = std::remove_cvref_t<decltype(member)>;
        if constexpr (std::is_same_v<Record, CapabilitySet::CVelTarnPTZPresetInfo>) {
            // The position stands one level further down.
            if (name == std::string("elevation")) {
                cursor = Find(cursor, "AbsoluteHigh") ? cursor->children : nullptr;
            }
        }
        constexpr bool kIsList = (std::is_same_v<decltype(how), as::Repeated> || ...);
        while (Find(cursor, name)) {
            bool counts = Read(cursor, member, how...);
            if constexpr (xml::NestedFlagCounts<Record> && CapabilitySet::HasFields<Member>) {
                counts = xml::FlagOf(member);
            }
            isRead = isRead || counts;
            cursor = cursor->next;
            if (!kIsList) {
                break;
            }
        }
    });
    if (isRead) {
        xml::RaiseFlag(record);
    }
}

template <CapabilitySet::HasFields Record>
bool Read(const xmlNode* node, Record& record, as::Plain /*how*/)
{
    ReadFrom(node->children, record);
    return true;
}

/// An ability document's elements.
inline void Read(const xmlNode* node, CapabilitySet::AbilityElement& element)
{
    const auto qualified = [](const xmlNs* space, const xmlChar* name) {
        const std::string prefix = space == nullptr ? "" : Text(space->prefix);
        return prefix.empty() ? Text(name) : prefix + ":" + Text(name);
    };
    element.name = Text(node->name);
    for (const xmlNs* space = node->nsDef; space != nullptr; space = space->next) {
        const std::string prefix = Text(space->prefix);
        element.attributes.emplace_back(prefix.empty() ? "xmlns" : "xmlns:" + prefix,
                                        Text(space->href));
    }
    for (const xmlAttr* each = node->properties; each != nullptr; each = each->next) {
        element.attributes.emplace_back(qualified(each->ns, each->name),
                                        ContentOf(reinterpret_cast<const xmlNode*>(each)));
    }
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE) {
            Read(child, element.children.emplace_back());
        }
        if (child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE) {
            element.text += ContentOf(child);
        }
    }
    // Blanks between elements are no text.
    if (!element.children.empty() &&
        element.text.find_first_not_of(" \t\r\n") == std::string::npos) {
        element.text.clear();
    }
}

/// No device sends so many attributes, or declares entities: the library refuses what does.
inline bool IsRefused(const xmlNode* node)
{
    int attributes = 0;
    for (const xmlAttr* each = node->properties; each != nullptr; each = each->next) {
        ++attributes;
    }
    for (const xmlNs* space = node->nsDef; space != nullptr; space = space->next) {
        ++attributes;
    }
    if (attributes > 1000) {
        return true;
    }
    for (const xmlNode* child = node->children; child != nullptr; child = child->next) {
        if (child->type == XML_ELEMENT_NODE && IsRefused(child)) {
            return true;
        }
    }
    return false;
}

template <class Record>
bool HasEmptyItem(const xmlNode* firstChild, Record& record)
{
    bool hasOne = false;
    Record::Fields(record, [&](const char* name, auto& /*member*/, auto... how) {
        if constexpr ((std::is_same_v<decltype(how), as::Repeated> || ...)) {
            for (const xmlNode* item = firstChild; Find(item, name); item = item->next) {
                hasOne = hasOne || item->children == nullptr;
            }
        }
    });
    return hasOne;
}

using Tree = std::unique_ptr<xmlDoc, void (*)(xmlDoc*)>;

/// The lists of pan-tilt-zoom channels but one are read as UTF-8, without blank texts.
inline Tree Parse(const std::string& text, bool isBlankFree)
{
    xmlSetStructuredErrorFunc(nullptr, [](void*, xmlErrorPtr) {});
    const int length = static_cast<int>(std::strlen(text.c_str()));
    Tree tree(isBlankFree
                  ? xmlReadMemory(text.c_str(), length, nullptr, "UTF-8", XML_PARSE_NOBLANKS)
                  : xmlParseDoc(reinterpret_cast<const xmlChar*>(text.c_str())),
              xmlFreeDoc);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    if (tree != nullptr) {
        const xmlDtd* const declared = tree->intSubset;
        const bool hasEntities = declared != nullptr &&
                                 (declared->entities != nullptr || declared->pentities != nullptr);
        if (hasEntities || IsRefused(xmlDocGetRootElement(tree.get()))) {
            tree.reset();
        }
    }
    return tree;
}

/// Reads a document whose root has this name into a record.
template <class Record>
Verdict ReadDocument(const std::string& text, const char* rootName, Record& record)
{
    constexpr bool kIsTree = std::derived_from<Record, CapabilitySet::AbilityDocument>;
    constexpr bool kIsPlainList = std::is_same_v<Record, CapabilitySet::CPTZPresetListCfg>;
    const bool isBlankFree =
        !kIsTree && !kIsPlainList && std::string_view(rootName).substr(0, 3) == "PTZ";
    const Tree tree = Parse(text, isBlankFree);
    const xmlNode* root = tree == nullptr ? nullptr : xmlDocGetRootElement(tree.get());
    bool isRecord = Find(root, rootName);
    if constexpr (requires { Record::kRequestRoot; }) {
        isRecord = isRecord || Find(root, Record::kRequestRoot);
    }
    if (!isRecord) {
        return Verdict::None;
    }
    if constexpr (kIsTree) {
        CapabilitySet::AbilityElement read;
        Read(root, read);
        if (!read.children.empty()) {
            record.root = std::move(read);
            record.capable = true;
        }
    } else {
        if (isBlankFree && HasEmptyItem(root->children, record)) {
            return Verdict::Endless;
        }
        ReadFrom(root->children, record);
    }
    return Verdict::Fits;
}

}  // namespace TestSupport::reference
