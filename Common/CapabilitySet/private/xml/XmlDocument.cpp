// One parser context per thread, kept between documents, that trusts no device.
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

/// A kept dictionary beyond this is given back: a device could fill it with names.
constexpr std::size_t kMostDictionaryBytes = 256 * 1024;

/// Names of one document, in bytes: a hundred thousand and more. The dictionary's time grows with
/// their square.
constexpr std::size_t kLargestDictionary = 1024 * 1024;

/// Values that a document gives its elements by declaration, at most.
constexpr std::size_t kMostDefaultedBytes = 64 * 1024;

struct FreeContext
{
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using Context = std::unique_ptr<xmlParserCtxt, FreeContext>;

constexpr const char* kFlood = "An element has more than 1000 attributes";

/// Why a hook refused the document being parsed on this thread; no message when none did.
thread_local struct
{
    int line;
    const char* message;
} refusal;

/// Bytes of attributes that the document being parsed on this thread has by declaration alone.
thread_local std::size_t defaulted;

/// Ends the parse: the document counts as one that is not well-formed.
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

/// Declared values, up to the size that is allowed, for each element of a name: a few kilobytes of
/// document can stand for gigabytes of attributes.
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
    // Names are looked up among all namespaces in scope, each element's own and its parents'.
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
    // Set whatever the client's global defaults say, so that they are not obeyed.
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

/// `encoding` is what was wrong with that, before the parser saw the text.
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

/// Puts the text, which ends in a NUL, before the context as its only input. The parser reads it
/// where it stands and frees nothing of it. False: no memory.
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
    // A tree that was built while memory ran out is wrong in places, well-formed or not, and says
    // nothing of the text.
    const bool ranOut = QuietLibxml::RanOutOfMemory();
    // A dictionary at its limit tells the same.
    if (ranOut && xmlDictGetUsage(context->dict) <= kMostDictionaryBytes) {
        throw std::bad_alloc();
    }
    if (ranOut || context->wellFormed == 0 || document == nullptr ||
        !utf8.Refusal().message.empty()) {
        problem = LastProblem(utf8.Refusal());
        return nullptr;
    }
    // A kept context keeps neither the caller's text nor a copy of it.
    while (xmlParserInput* const input = inputPop(context.get())) {
        xmlFreeInputStream(input);
    }
    // Only after a clean parse is the context as good as new, and worth keeping.
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
