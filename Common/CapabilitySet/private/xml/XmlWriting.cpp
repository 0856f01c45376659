// Builds request documents from the field lists of records.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/xml/XmlWriting.h"

#include <array>
#include <charconv>
#include <new>
#include <string_view>

#include <libxml/globals.h>

#include "CapabilitySet/private/NumberText.h"
#include "CapabilitySet/private/xml/XmlDocument.h"
#include "CodePage/CodePage.h"

namespace CapabilitySet::xml
{
namespace
{

const xmlChar* Chars(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

/// Sets this thread's output format for the time of a dump and restores the client's settings.
class OutputForm
{
public:
    OutputForm()
        : indents_(xmlIndentTreeOutput),
          indentation_(xmlTreeIndentString),
          keepsTags_(xmlSaveNoEmptyTags)
    {
        xmlIndentTreeOutput = 1;
        xmlTreeIndentString = "  ";
        xmlSaveNoEmptyTags = 0;
    }
    ~OutputForm()
    {
        xmlIndentTreeOutput = indents_;
        xmlTreeIndentString = indentation_;
        xmlSaveNoEmptyTags = keepsTags_;
    }
    OutputForm(const OutputForm&) = delete;
    OutputForm& operator=(const OutputForm&) = delete;

private:
    int indents_;
    const char* indentation_;
    int keepsTags_;
};

struct FreeText
{
    void operator()(xmlChar* text) const { xmlFree(text); }
};

/// Drops characters that XML cannot represent: control characters except tab and line ends, and the
/// non-characters U+FFFE and U+FFFF. libxml2 would write them as they are.
void DropForbidden(std::string& utf8)
{
    const auto isControl = [](char c) {
        return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\n' && c != '\r';
    };
    std::erase_if(utf8, isControl);
    constexpr std::string_view kNonCharacters = "\xEF\xBF";
    std::size_t kept = 0;
    for (std::size_t at = 0; at < utf8.size();) {
        const char last = at + 2 < utf8.size() ? utf8[at + 2] : '\0';
        if ((last == '\xBE' || last == '\xBF') && utf8.compare(at, 2, kNonCharacters) == 0) {
            at += 3;
        } else {
            utf8[kept++] = utf8[at++];
        }
    }
    utf8.resize(kept);
}

std::string Dump(xmlDoc* document)
{
    xmlChar* text = nullptr;
    int length = 0;
    const OutputForm form;
    xmlDocDumpFormatMemoryEnc(document, &text, &length, "UTF-8", 1);
    const std::unique_ptr<xmlChar, FreeText> owner(text);
    if (text == nullptr || QuietLibxml::RanOutOfMemory()) {
        return {};
    }
    std::string body = CodePage::AnsiToUtf8(reinterpret_cast<const char*>(text));
    DropForbidden(body);
    return body;
}

}  // namespace

xmlNode* NewElement(const char* name)
{
    return xmlNewNode(nullptr, Chars(name));
}

void AddText(xmlNode* parent, const char* name, const std::string& text)
{
    // An empty text node would be written as "<a></a>".
    const char* const content = text.c_str()[0] == '\0' ? nullptr : text.c_str();
    // Not xmlNewChild: it parses its text as XML and loses what follows an "&".
    if (xmlNewTextChild(parent, nullptr, Chars(name), Chars(content)) == nullptr) {
        throw std::bad_alloc();
    }
}

xmlNode* CompleteOrNull(xmlNode* element)
{
    std::unique_ptr<xmlNode, FreeNode> owner(element);
    return QuietLibxml::RanOutOfMemory() ? nullptr : owner.release();
}

void AddChild(xmlNode* parent, xmlNode* child)
{
    if (child == nullptr) {
        throw std::bad_alloc();
    }
    xmlAddChild(parent, child);
}

std::string TextOfValue(double value)
{
    constexpr int kStreamPrecision = 6;
    // The largest number has 309 digits before the point, the smallest 340 after it.
    std::array<char, 384> digits;
    char* const begin = digits.data();
    const auto end = std::to_chars(begin, begin + digits.size(), value, std::chars_format::general,
                                   kStreamPrecision);
    std::string text(begin, end.ptr);
    if (StringToDouble(text) == value) {
        return text;
    }
    return {begin,
            std::to_chars(begin, begin + digits.size(), value, std::chars_format::fixed).ptr};
}

std::string DumpDocument(xmlNode* root, const char* version)
{
    if (root == nullptr) {
        return {};
    }
    const QuietLibxml quiet;
    const Document document(xmlNewDoc(Chars("1.0")));
    if (document == nullptr) {
        xmlFreeNode(root);
        return {};
    }
    xmlDocSetRootElement(document.get(), root);
    if (*version != '\0' && xmlNewProp(root, Chars("version"), Chars(version)) == nullptr) {
        return {};
    }
    try {
        return Dump(document.get());
    } catch (...) {  // nothing is thrown at clients
        return {};
    }
}

}  // namespace CapabilitySet::xml
