// Examines request bodies without building a tree of XML.
// SPDX-License-Identifier: Apache-2.0
#include "Device/message/RequestDocument.h"

#include <algorithm>
#include <climits>
#include <memory>
#include <span>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>

#include "Device/Limits.h"
#include "Device/document/JsonDocument.h"
#include "Device/document/Text.h"
#include "XmlGuard/TagScan.h"

namespace Device
{
namespace
{

constexpr std::string_view kChannelElements[] = {"channelNO", "channelID", "ChannelNumber",
                                                 "VideoChannelNumber"};

struct Reading
{
    xmlParserCtxtPtr context = nullptr;
    RequestDocument* document = nullptr;
    int depth = 0;
    int namespaces = 0;
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

// libxml2 passes five pointers for each attribute: name, prefix, URI, start and end of its value.
bool HasXmlId(std::span<const xmlChar*> attributes)
{
    for (size_t i = 0; i + 1 < attributes.size(); i += 5) {
        if (Text(attributes[i]) == "id" && Text(attributes[i + 1]) == "xml") {
            return true;
        }
    }
    return false;
}

void StartElement(void* data, const xmlChar* localName, const xmlChar*, const xmlChar*,
                  int namespaces, const xmlChar**, int attributeCount, int,
                  const xmlChar** attributes)
{
    auto& reading = *static_cast<Reading*>(data);
    RequestDocument& document = *reading.document;
    reading.namespaces += namespaces;
    if (reading.namespaces > kMostNamespaces ||
        HasXmlId({attributes, 5 * static_cast<size_t>(attributeCount)})) {
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
    if (reading.inChannel && channel.size() < kMostChannelText) {
        const std::string_view piece(reinterpret_cast<const char*>(text),
                                     static_cast<size_t>(length));
        channel += piece.substr(0, kMostChannelText);
    }
}

void DocumentType(void* data, const xmlChar*, const xmlChar*, const xmlChar*)
{
    static_cast<Reading*>(data)->Refuse();
}

void IgnoreError(void*, xmlErrorPtr) {}

bool ReadXml(std::string_view body, RequestDocument& document)
{
    if (body.size() > INT_MAX || XmlGuard::HasAttributeFlood(body, kMostAttributes)) {
        return false;
    }
    const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(xmlNewParserCtxt(),
                                                                               &xmlFreeParserCtxt);
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
    // These handlers build no document.
    xmlCtxtReadMemory(context.get(), body.data(), static_cast<int>(body.size()), nullptr, "UTF-8",
                      XML_PARSE_NONET);
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
    const std::string_view text = Trimmed(body);
    if (text.empty()) {
        return document;
    }
    // Some requests carry JSON without "format=json".
    document.looksLikeJson =
        text.front() == '{' || text.front() == '[' || (jsonExpected && text.front() != '<');
    const bool read = document.looksLikeJson ? ReadJson(body, document) : ReadXml(body, document);
    document.form = !read                    ? RequestDocument::Form::Malformed
                    : document.looksLikeJson ? RequestDocument::Form::Json
                                             : RequestDocument::Form::Xml;
    return document;
}

}  // namespace Device
