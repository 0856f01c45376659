// Reading request bodies without building a tree of them.
// SPDX-License-Identifier: Apache-2.0
#include "Device/RequestDocument.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include <algorithm>
#include <climits>
#include <memory>

#include "Device/JsonDocument.h"

namespace Device
{
namespace
{

constexpr int kMaxAttributes = 1000;
constexpr size_t kMaxChannelText = 32;
constexpr std::string_view kChannelElements[] = {"channelNO", "channelID", "ChannelNumber",
                                                 "VideoChannelNumber"};

struct Reading
{
    xmlParserCtxtPtr context = nullptr;
    RequestDocument* document = nullptr;
    int depth = 0;
    bool inChannel = false;
    bool refused = false;

    void Refuse()
    {
        refused = true;
        xmlStopParser(context);
    }
};

std::string_view Text(const xmlChar* text)
{
    return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

void StartElement(void* data, const xmlChar* localName, const xmlChar*, const xmlChar*, int,
                  const xmlChar**, int attributes, int, const xmlChar**)
{
    auto& reading = *static_cast<Reading*>(data);
    RequestDocument& document = *reading.document;
    if (attributes > kMaxAttributes) {
        reading.Refuse();
        return;
    }
    if (reading.depth == 0) {
        document.roots.assign(1, std::string(Text(localName)));
    } else if (document.channelName.empty() &&
               std::ranges::find(kChannelElements, Text(localName)) != std::end(kChannelElements)) {
        document.channelName = Text(localName);
        reading.inChannel = true;
    }
    ++reading.depth;
}

void EndElement(void* data, const xmlChar*, const xmlChar*, const xmlChar*)
{
    auto& reading = *static_cast<Reading*>(data);
    --reading.depth;
    reading.inChannel = false;
}

void Characters(void* data, const xmlChar* text, int length)
{
    auto& reading = *static_cast<Reading*>(data);
    std::string& channel = reading.document->channel;
    if (reading.inChannel && channel.size() < kMaxChannelText) {
        const std::string_view piece(reinterpret_cast<const char*>(text),
                                     static_cast<size_t>(length));
        channel += piece.substr(0, kMaxChannelText);
    }
}

void DocumentType(void* data, const xmlChar*, const xmlChar*, const xmlChar*)
{
    static_cast<Reading*>(data)->Refuse();
}

void IgnoreError(void*, xmlErrorPtr) {}

std::string Trimmed(const std::string& text)
{
    constexpr char kBlanks[] = " \t\r\n";
    const size_t first = text.find_first_not_of(kBlanks);
    return first == std::string::npos
               ? std::string()
               : text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool ReadXml(std::string_view body, RequestDocument& document)
{
    if (body.size() > INT_MAX) {
        return false;
    }
    const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(
        xmlCreateMemoryParserCtxt(body.data(), static_cast<int>(body.size())), &xmlFreeParserCtxt);
    if (!context) {
        return false;
    }
    Reading reading;
    reading.context = context.get();
    reading.document = &document;
    xmlSAXHandler& handler = *context->sax;
    handler = {};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = &StartElement;
    handler.endElementNs = &EndElement;
    handler.characters = &Characters;
    handler.cdataBlock = &Characters;
    handler.internalSubset = &DocumentType;
    handler.serror = &IgnoreError;
    context->userData = &reading;
    xmlCtxtUseOptions(context.get(), XML_PARSE_NONET);
    xmlParseDocument(context.get());
    document.channel = Trimmed(document.channel);
    return context->wellFormed != 0 && !reading.refused;
}

bool ReadJson(std::string_view body, RequestDocument& document)
{
    const std::optional<Json::Value> root = ReadJsonDocument(body);
    if (!root || !(root->isObject() || root->isArray())) {
        return false;
    }
    if (root->isObject()) {
        document.roots = root->getMemberNames();
    }
    return true;
}

}  // namespace

RequestDocument ReadRequestDocument(std::string_view body, bool jsonExpected)
{
    RequestDocument document;
    const size_t first = body.find_first_not_of(" \t\r\n");
    if (first == std::string_view::npos) {
        return document;
    }
    // Some requests carry JSON without saying so in their target.
    document.looksLikeJson =
        body[first] == '{' || body[first] == '[' || (jsonExpected && body[first] != '<');
    const bool read = document.looksLikeJson ? ReadJson(body, document) : ReadXml(body, document);
    document.form = !read                    ? RequestDocument::Form::Malformed
                    : document.looksLikeJson ? RequestDocument::Form::Json
                                             : RequestDocument::Form::Xml;
    return document;
}

}  // namespace Device
