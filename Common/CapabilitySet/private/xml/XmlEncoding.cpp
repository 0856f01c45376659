// Finds the declared encoding of an XML text and converts the text to UTF-8.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlEncoding.h"

#include <algorithm>
#include <cctype>
#include <memory>
#include <new>

#include <libxml/encoding.h>
#include <libxml/tree.h>
#include <libxml/xmlmemory.h>
#include <libxml/xmlstring.h>

#include "CapabilitySet/Limits.h"
#include "CapabilitySet/private/xml/QuietLibxml.h"

namespace CapabilitySet::xml
{
namespace
{

/// The rest of an XML declaration, consumed piece by piece exactly as far as the parser gets.
class Declaration
{
public:
    explicit Declaration(std::string_view rest) : rest_(rest) {}

    bool Take(std::string_view piece)
    {
        const bool isNext = rest_.starts_with(piece);
        rest_.remove_prefix(isNext ? piece.size() : 0);
        return isNext;
    }

    /// Consumes characters while `belongs` accepts them, at most `most`.
    template <class Belongs>
    std::string_view TakeWhile(Belongs belongs, std::size_t most = std::string_view::npos)
    {
        const std::string_view next = rest_.substr(0, most);
        const auto end = std::ranges::find_if_not(
            next, [&belongs](char c) { return belongs(static_cast<unsigned char>(c)); });
        const auto size = static_cast<std::size_t>(end - next.begin());
        rest_.remove_prefix(size);
        return next.substr(0, size);
    }

    bool TakeBlanks()
    {
        const auto isBlank = [](unsigned char c) {
            return c == ' ' || c == '\t' || c == '\r' || c == '\n';
        };
        return !TakeWhile(isBlank).empty();
    }

    /// Consumes everything before the value of an attribute. Returns the quote, or NUL if no value
    /// starts here.
    char TakeValueStart()
    {
        TakeBlanks();
        if (!Take("=")) {
            return '\0';
        }
        TakeBlanks();
        return Take("\"") ? '"' : Take("'") ? '\'' : '\0';
    }

private:
    std::string_view rest_;
};

bool IsDigit(unsigned char c)
{
    return std::isdigit(c) != 0;
}

void TakeVersion(Declaration& declaration)
{
    const char quote = declaration.TakeValueStart();
    if (quote == '\0') {
        return;
    }
    if (!declaration.TakeWhile(IsDigit, 1).empty() && declaration.Take(".")) {
        declaration.TakeWhile(IsDigit);
    }
    declaration.Take({&quote, 1});
}

/// The encoding name as it stands in the text; empty if there is none the parser accepts.
std::string_view DeclaredEncoding(std::string_view text)
{
    Declaration declaration(text);
    declaration.Take("\xEF\xBB\xBF");
    if (!declaration.Take("<?xml") || !declaration.TakeBlanks()) {
        return {};
    }
    if (declaration.Take("version")) {
        TakeVersion(declaration);
    }
    declaration.TakeBlanks();
    if (!declaration.Take("encoding")) {
        return {};
    }
    const char quote = declaration.TakeValueStart();
    if (quote == '\0') {
        return {};
    }
    const std::string_view name = declaration.TakeWhile(
        [](unsigned char c) { return std::isalnum(c) != 0 || c == '.' || c == '_' || c == '-'; });
    const bool isName =
        !name.empty() && std::isalpha(static_cast<unsigned char>(name.front())) != 0;
    return isName && declaration.Take({&quote, 1}) ? name : std::string_view();
}

bool IsOneOf(const std::string& name, const char* first, const char* second)
{
    const auto* text = reinterpret_cast<const xmlChar*>(name.c_str());
    return xmlStrcasecmp(text, reinterpret_cast<const xmlChar*>(first)) == 0 ||
           xmlStrcasecmp(text, reinterpret_cast<const xmlChar*>(second)) == 0;
}

struct Free
{
    void operator()(char* text) const { xmlFree(text); }
    void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
    void operator()(xmlCharEncodingHandler* converter) const { xmlCharEncCloseFunc(converter); }
};
template <class Held>
using Owned = std::unique_ptr<Held, Free>;

/// Null if there is no such converter.
Owned<xmlCharEncodingHandler> FindConverter(const std::string& encoding)
{
    Owned<char> name(xmlMemStrdup(encoding.c_str()));
    if (name == nullptr) {
        throw std::bad_alloc();
    }
    Owned<xmlCharEncodingHandler> converter(xmlFindCharEncodingHandler(encoding.c_str()));
    // libxml2 never frees a converter that it could not name.
    if (converter != nullptr && converter->name == nullptr) {
        converter->name = name.release();
    }
    if (QuietLibxml::RanOutOfMemory()) {
        throw std::bad_alloc();
    }
    return converter;
}

/// Converts the text up to the first byte that is invalid in its encoding.
std::string Converted(std::string_view text, xmlCharEncodingHandler& converter)
{
    if (text.empty()) {
        return {};  // xmlBufferCreateStatic refuses empty text
    }
    const Owned<xmlBuffer> in(xmlBufferCreateStatic(const_cast<char*>(text.data()), text.size()));
    const Owned<xmlBuffer> out(xmlBufferCreate());
    if (in == nullptr || out == nullptr) {
        throw std::bad_alloc();
    }
    int left = 0;
    do {
        left = xmlBufferLength(in.get());
        xmlCharEncInFunc(&converter, out.get(), in.get());
        if (QuietLibxml::RanOutOfMemory()) {
            throw std::bad_alloc();
        }
    } while (xmlBufferLength(in.get()) < left);
    return {reinterpret_cast<const char*>(xmlBufferContent(out.get())),
            static_cast<std::size_t>(xmlBufferLength(out.get()))};
}

std::string_view UpToNul(std::string_view text)
{
    return text.substr(0, text.find('\0'));
}

}  // namespace

Utf8Text::Utf8Text(const std::string& text, Form form) : text_(UpToNul(text))
{
    const std::string_view name = DeclaredEncoding(text_);
    const std::string encoding(name);
    if (encoding.empty() || IsOneOf(encoding, "UTF-8", "UTF8")) {
        return;
    }
    const auto behindName = static_cast<std::size_t>(name.data() - text_.data()) + name.size() + 1;
    const std::string_view head = text_.substr(0, behindName);
    const int line = 1 + static_cast<int>(std::ranges::count(head, '\n'));
    const bool obeys = form == Form::Plain;
    if (obeys && IsOneOf(encoding, "UTF-16", "UTF16")) {
        refusal_ = {line, "Document labelled UTF-16 but has UTF-8 content\n"};
        return;
    }
    const Owned<xmlCharEncodingHandler> converter = FindConverter(encoding);
    if (converter == nullptr || text_.size() > limits::kConvertedBytes) {
        refusal_ = {line, "Unsupported encoding " + encoding + "\n"};
        text_ = "";
    } else if (obeys) {
        const std::string_view rest = text_.substr(behindName);
        const std::string converted = Converted(rest, *converter);
        if (converted.empty() && !rest.empty()) {
            refusal_ = {line, "The text cannot be converted from the encoding " + encoding + "\n"};
            text_ = "";
            return;
        }
        converted_.append(head).append(converted);
        text_ = UpToNul(converted_);
    }
}

}  // namespace CapabilitySet::xml
