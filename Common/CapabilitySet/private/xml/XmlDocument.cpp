// Parses documents in one context per thread, hardened against hostile devices.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlDocument.h"

#include <climits>
#include <new>
#include <string>
#include <string_view>
#include <utility>

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/xmlerror.h>

#include "CapabilitySet/Limits.h"
#include "CapabilitySet/private/TreeMemory.h"
#include "CapabilitySet/private/xml/AttributeFlood.h"
#include "CapabilitySet/private/xml/QuietLibxml.h"
#include "CapabilitySet/private/xml/XmlEncoding.h"

namespace CapabilitySet::xml
{
namespace
{

/// A larger dictionary is freed, not kept for the next document.
constexpr std::size_t kMostDictionaryBytes = 256 * 1024;

struct FreeContext
{
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
};
using Context = std::unique_ptr<xmlParserCtxt, FreeContext>;

/// Why a document is refused. Literals: a hook must not throw.
struct Reason
{
    const char* text = nullptr;  ///< null if it is not refused
    std::size_t limit = 0;       ///< which the document exceeds; 0 for none
    const char* unit = "";
};

constexpr Reason kEntities{"The document declares entities"};
constexpr Reason kAttributes{"An element has more than ", limits::kAttributes, " attributes"};
constexpr Reason kDefaultedBytes{"The document declares more than ",
                                 limits::kDefaultedAttributeBytes, " bytes of attribute values"};
constexpr Reason kSubsetBytes{"The internal subset has more than ", limits::kInternalSubsetBytes,
                              " bytes"};
constexpr Reason kNameBytes{"The document has more than ", limits::kNameBytes, " bytes of names"};

struct Refusal
{
    int line = 0;
    Reason reason;
};

Problem ProblemOf(const Refusal& refusal)
{
    const Reason& reason = refusal.reason;
    return {refusal.line, reason.text +
                              (reason.limit == 0 ? std::string() : std::to_string(reason.limit)) +
                              reason.unit};
}

/// What the hooks know of the document being parsed on this thread.
struct Parsing
{
    Refusal refusal;            ///< by a hook
    std::size_t defaulted = 0;  ///< bytes of attributes that declarations have added
    char* copy = nullptr;       ///< the text, if it is a copy that may be written to
    char* cut = nullptr;        ///< where the text was cut to bound the internal subset
    char cutOff = '\0';         ///< the character that stood there
    bool needsCopy = false;     ///< whether the parse has to start again with a copy
};
constinit thread_local Parsing parsing;

/// Stops parsing; the document counts as malformed.
void Refuse(xmlParserCtxt* context, const Reason& reason)
{
    parsing.refusal = {context->input == nullptr ? 0 : context->input->line, reason};
    xmlStopParser(context);
    context->wellFormed = 0;
}

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
    parsing.defaulted += bytes;
    return parsing.defaulted > limits::kDefaultedAttributeBytes;
}

void StartElement(void* context, const xmlChar* localName, const xmlChar* prefix,
                  const xmlChar* uri, int namespaceCount, const xmlChar** namespaces,
                  int attributeCount, int defaultedCount, const xmlChar** attributes)
{
    auto* const parser = static_cast<xmlParserCtxt*>(context);
    // Names are looked up among all namespaces in scope, those of the parents included.
    if (attributeCount > limits::kAttributes || parser->nsNr / 2 > limits::kAttributes) {
        Refuse(parser, kAttributes);
        return;
    }
    if (defaultedCount > 0 && DefaultsTooMuch(defaultedCount, attributeCount, attributes)) {
        Refuse(parser, kDefaultedBytes);
        return;
    }
    xmlSAX2StartElementNs(context, localName, prefix, uri, namespaceCount, namespaces,
                          attributeCount, defaultedCount, attributes);
}

/// Called before the internal subset is parsed. libxml2 offers no way to stop within a declaration,
/// so the text is cut where the subset may end at most. Only a copy can be cut: without one the
/// parse starts again.
void BeginSubset(void* context, const xmlChar* name, const xmlChar* externalId,
                 const xmlChar* systemId)
{
    auto* const parser = static_cast<xmlParserCtxt*>(context);
    if (parsing.copy == nullptr) {
        parsing.needsCopy = true;
        xmlStopParser(parser);
        parser->wellFormed = 0;
        return;
    }
    const xmlParserInput* const input = parser->input;
    if (static_cast<std::size_t>(input->end - input->cur) > limits::kInternalSubsetBytes) {
        parsing.cut = parsing.copy + (input->cur - input->base) + limits::kInternalSubsetBytes;
        parsing.cutOff = std::exchange(*parsing.cut, '\0');
    }
    xmlSAX2InternalSubset(context, name, externalId, systemId);
}

/// Called after the internal subset. Loads no external one.
void EndSubset(void* /*context*/, const xmlChar* /*name*/, const xmlChar* /*externalId*/,
               const xmlChar* /*systemId*/)
{
    if (parsing.cut != nullptr) {
        *std::exchange(parsing.cut, nullptr) = parsing.cutOff;
    }
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
    xmlDictSetLimit(context->dict, limits::kNameBytes);
    context->keepBlanks = blankFree ? 0 : 1;
    context->replaceEntities = 0;
    // Without IDs, whose table takes time quadratic in their number. External subsets are never
    // loaded: EndSubset does not.
    context->loadsubset = XML_SKIP_IDS;
    context->validate = 0;
    context->pedantic = 0;
    context->linenumbers = 1;
    context->sax->ignorableWhitespace = blankFree ? xmlSAX2IgnorableWhitespace : xmlSAX2Characters;
    context->sax->serror = QuietLibxml::Note;
    context->sax->entityDecl = RefuseEntity;
    context->sax->unparsedEntityDecl = RefuseUnparsedEntity;
    context->sax->internalSubset = BeginSubset;
    context->sax->externalSubset = EndSubset;
    context->sax->startElementNs = StartElement;
    return context;
}

/// `encoding` is a problem found before the parser saw the text.
Problem LastProblem(const Problem& encoding = {})
{
    if (parsing.refusal.reason.text != nullptr) {
        return ProblemOf(parsing.refusal);
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

/// Whether the text was cut within the internal subset, which so cannot have ended.
bool IsCutInSubset()
{
    constexpr std::size_t kMost = limits::kInternalSubsetBytes;
    return parsing.cut != nullptr &&
           std::string_view(parsing.cut - kMost, kMost).find(']') == std::string_view::npos;
}

/// Parses with the context of this thread. `copy` is null, or the text in a form that may be
/// written to.
Document ParseUtf8(const Utf8Text& utf8, std::string_view text, char* copy, Form form,
                   Problem& problem)
{
    thread_local Context kept[2];
    Context context = std::move(kept[static_cast<int>(form)]);
    parsing = {};
    parsing.copy = copy;
    if (context == nullptr) {
        context = NewContext(form);
    } else {
        xmlCtxtReset(context.get());
    }
    if (!Feed(context.get(), text)) {
        throw std::bad_alloc();
    }
    xmlParseDocument(context.get());
    Document document(context->myDoc);
    context->myDoc = nullptr;
    // A tree built while memory ran out is wrong in places, whether well-formed or not.
    const bool ranOut = QuietLibxml::RanOutOfMemory();
    // A dictionary at its limit reports the same.
    const bool namesFull = xmlDictGetUsage(context->dict) > kMostDictionaryBytes;
    if (ranOut && !namesFull) {
        throw std::bad_alloc();
    }
    if (ranOut) {
        Refuse(context.get(), kNameBytes);
    } else if (IsCutInSubset()) {
        Refuse(context.get(), kSubsetBytes);
    }
    if (context->wellFormed == 0 || document == nullptr || !utf8.Refusal().message.empty()) {
        problem = LastProblem(utf8.Refusal());
        return nullptr;
    }
    // Drop the input: a kept context must not refer to the caller's text.
    while (xmlParserInput* const input = inputPop(context.get())) {
        xmlFreeInputStream(input);
    }
    // Only a context that parsed cleanly is worth keeping.
    if (!namesFull) {
        kept[static_cast<int>(form)] = std::move(context);
    }
    return document;
}

}  // namespace

Document ParseText(const std::string& text, Form form, Problem& problem)
{
    const QuietLibxml quiet;
    parsing = {};
    const Utf8Text utf8(text, form);
    if (HoldsAttributeFlood(utf8.Get())) {
        problem = ProblemOf({0, kAttributes});
        return nullptr;
    }
    if (TakesTooMuchMemory(utf8.Get(), XmlTreeBytes)) {
        problem = ProblemOf(
            {0,
             {"The document would take more than ", limits::DocumentMemory(), " bytes of memory"}});
        return nullptr;
    }
    if (utf8.Get().empty() || utf8.Get().size() > static_cast<std::size_t>(INT_MAX)) {
        problem = LastProblem(utf8.Refusal());
        return nullptr;
    }
    Document document = ParseUtf8(utf8, utf8.Get(), nullptr, form, problem);
    if (parsing.needsCopy) {
        xmlResetLastError();
        std::string copy(utf8.Get());
        document = ParseUtf8(utf8, copy, copy.data(), form, problem);
        parsing.copy = parsing.cut = nullptr;
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
