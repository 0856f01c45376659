// Parses documents in one context per thread, hardened against hostile devices.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlDocument.h"

#include <climits>
#include <new>
#include <string_view>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include "CapabilitySet/private/xml/AttributeFlood.h"
#include "CapabilitySet/private/xml/QuietLibxml.h"
#include "CapabilitySet/private/xml/XmlEncoding.h"

namespace CapabilitySet::xml
{
namespace
{

/// A larger dictionary is freed, not kept for the next document.
constexpr std::size_t kMostDictionaryBytes = 256 * 1024;

/// Bytes of names in one document, enough for more than a hundred thousand. Looking names up takes
/// time quadratic in their number.
constexpr std::size_t kLargestDictionary = 1024 * 1024;

/// Bytes of attribute values that a document may add by declaration.
constexpr std::size_t kMostDefaultedBytes = 64 * 1024;

struct FreeContext
{
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using Context = std::unique_ptr<xmlParserCtxt, FreeContext>;

constexpr const char* kFlood = "An element has more than 1000 attributes";

/// Why a hook refused the document being parsed on this thread; null message if none did.
thread_local struct
{
    int line;
    const char* message;
} refusal;

/// Bytes of attributes that declarations have added to the document being parsed.
thread_local std::size_t defaulted;

/// Stops parsing; the document counts as malformed.
void Refuse(xmlParserCtxt* context, const char* why)
{
    refusal = {context->input == nullptr ? 0 : context->input->line, why};
    xmlStopParser(context);
    context->wellFormed = 0;
}

constexpr const char* kEntities = "The document declares entities";

void RefuseEntity(void* context, const xmlChar* /*name*/, int /*type*/, const xmlChar* /*publicId*/,
                  const xmlChar* /*systemId*/, xmlChar* /*content*/)
{
    Refuse(static_cast<xmlParserCtxt*>(context), kEntities);
}

void RefuseUnparsedEntity(void* context, const xmlChar* /*name*/, const xmlChar* /*publicId*/,
                          const xmlChar* /*systemId*/, const xmlChar* /*notation*/)
{
    Refuse(static_cast<xmlParserCtxt*>(context), kEntities);
}

/// Whether declared attribute values exceed their limit. They apply to every element of a name, so
/// a few kilobytes can stand for gigabytes.
bool DefaultsTooMuch(int defaultedCount, int attributeCount, const xmlChar** attributes)
{
    auto bytes = static_cast<std::size_t>(defaultedCount);
    for (int i = attributeCount - defaultedCount; i < attributeCount; ++i) {
        bytes += static_cast<std::size_t>(attributes[5 * i + 4] - attributes[5 * i + 3]);
    }
    defaulted += bytes;
    return defaulted > kMostDefaultedBytes;
}

void StartElement(void* context, const xmlChar* localName, const xmlChar* prefix,
                  const xmlChar* uri, int namespaceCount, const xmlChar** namespaces,
                  int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    auto* const parser = static_cast<xmlParserCtxt*>(context);
    // Names are looked up among all namespaces in scope, those of the parents included.
    if (attributeCount > kMostAttributes || parser->nsNr / 2 > kMostAttributes) {
        Refuse(parser, kFlood);
        return;
    }
    if (defaultedCount > 0 && DefaultsTooMuch(defaultedCount, attributeCount, attributes)) {
        Refuse(parser, "The document declares values for too many attributes");
        return;
    }
    xmlSAX2StartElementNs(context, localName, prefix, uri, namespaceCount, namespaces,
                          attributeCount, defaultedCount, attributes);
}

Context NewContext(Form form)
{
    Context context(xmlNewParserCtxt());
    if (context == nullptr) {
        throw std::bad_alloc();
    }
    // Set explicitly, so that the client's global defaults have no effect.
    const bool blankFree = form == Form::BlankFree;
    context->options =
        XML_PARSE_COMPACT | XML_PARSE_IGNORE_ENC | (blankFree ? XML_PARSE_NOBLANKS : 0);
    context->dictNames = 1;
    xmlDictSetLimit(context->dict, kLargestDictionary);
    context->keepBlanks = blankFree ? 0 : 1;
    context->replaceEntities = 0;
    context->loadsubset = 0;
    context->validate = 0;
    context->pedantic = 0;
    context->linenumbers = 1;
    context->sax->ignorableWhitespace = blankFree ? xmlSAX2IgnorableWhitespace : xmlSAX2Characters;
    context->sax->serror = QuietLibxml::Note;
    context->sax->entityDecl = RefuseEntity;
    context->sax->unparsedEntityDecl = RefuseUnparsedEntity;
    context->sax->startElementNs = StartElement;
    return context;
}

/// `encoding` is a problem found before the parser saw the text.
Problem LastProblem(const Problem& encoding = {})
{
    if (refusal.message != nullptr) {
        return {refusal.line, refusal.message};
    }
    const xmlError* error = xmlGetLastError();
    if (error == nullptr) {
        return encoding;
    }
    return {error->line, error->message == nullptr ? "" : error->message};
}

/// Makes the text, which ends in a NUL, the only input of the context. The parser reads it in place
/// and does not free it. False if memory runs out.
bool Feed(xmlParserCtxt* context, std::string_view text)
{
    xmlParserInput* const input =
        xmlNewStringInputStream(context, reinterpret_cast<const xmlChar*>(text.data()));
    if (input == nullptr) {
        return false;
    }
    if (inputPush(context, input) < 0) {
        xmlFreeInputStream(input);
        return false;
    }
    return true;
}

}  // namespace

Document ParseText(const std::string& text, Form form, Problem& problem)
{
    thread_local Context kept[2];
    Context context = std::move(kept[static_cast<int>(form)]);
    const QuietLibxml quiet;
    refusal = {};
    defaulted = 0;
    const Utf8Text utf8(text, form);
    if (HoldsAttributeFlood(utf8.Get())) {
        problem.message = kFlood;
        return nullptr;
    }
    if (context == nullptr) {
        context = NewContext(form);
    } else {
        xmlCtxtReset(context.get());
    }

    if (utf8.Get().empty() || utf8.Get().size() > static_cast<std::size_t>(INT_MAX)) {
        problem = LastProblem(utf8.Refusal());
        return nullptr;
    }
    if (!Feed(context.get(), utf8.Get())) {
        throw std::bad_alloc();
    }
    xmlParseDocument(context.get());
    Document document(context->myDoc);
    context->myDoc = nullptr;
    // A tree built while memory ran out is wrong in places, whether well-formed or not.
    const bool ranOut = QuietLibxml::RanOutOfMemory();
    // A dictionary at its limit reports the same.
    if (ranOut && xmlDictGetUsage(context->dict) <= kMostDictionaryBytes) {
        throw std::bad_alloc();
    }
    if (ranOut || context->wellFormed == 0 || document == nullptr ||
        !utf8.Refusal().message.empty()) {
        problem = LastProblem(utf8.Refusal());
        return nullptr;
    }
    // Drop the input: a kept context must not refer to the caller's text.
    while (xmlParserInput* const input = inputPop(context.get())) {
        xmlFreeInputStream(input);
    }
    // Only a context that parsed cleanly is worth keeping.
    if (xmlDictGetUsage(context->dict) <= kMostDictionaryBytes) {
        kept[static_cast<int>(form)] = std::move(context);
    }
    return document;
}

Document OpenRoot(const std::string& text, const char* rootName, const log::Place& place, Form form,
                  const RootRule& rule, xmlNode*& root)
{
    Problem problem;
    Document document = ParseText(text, form, problem);
    if (document == nullptr) {
        log::Error(place,
                   "%sCann't parse the XML, The error is at line[%d], the error message is [%s].",
                   rule.prefix, problem.line, problem.message.c_str());
        return nullptr;
    }
    root = xmlDocGetRootElement(document.get());
    if (root == nullptr) {
        problem = LastProblem();
        log::Error(
            place,
            "%sCann't get root element from the XML, The error is at line[%d], the error message "
            "is [%s].",
            rule.prefix, problem.line, problem.message.c_str());
        return nullptr;
    }
    if (!NextElementNamed(root, rootName) &&
        (rule.alias == nullptr || !NextElementNamed(root, rule.alias))) {
        if (rule.logsMismatch) {
            log::Error(place, "%sThe root element is mismatched with the %sXML.", rule.prefix,
                       rule.document);
        }
        return nullptr;
    }
    return document;
}

}  // namespace CapabilitySet::xml
