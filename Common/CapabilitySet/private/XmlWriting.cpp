// Builds request documents from records' field lists.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/XmlWriting.h"

#include <array>
#include <charconv>
#include <new>

#include <libxml/globals.h>

#include "CapabilitySet/private/XmlDocument.h"
#include "CodePage/CodePage.h"

namespace CapabilitySet::xml
{
namespace
{

const xmlChar* Chars(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

/// Indents whatever the client has set for this thread, and leaves that as it was.
class Indentation
{
public:
    Indentation() : before_(xmlIndentTreeOutput) { xmlIndentTreeOutput = 1; }
    ~Indentation() { xmlIndentTreeOutput = before_; }
    Indentation(const Indentation&) = delete;
    Indentation& operator=(const Indentation&) = delete;

private:
    int before_;
};

struct FreeText
{
    void operator()(xmlChar* text) const { xmlFree(text); }
};

}  // namespace

xmlNode* NewElement(const char* name)
{
    return xmlNewNode(nullptr, Chars(name));
}

void AddText(xmlNode* parent, const char* name, const std::string& text)
{
    // Not xmlNewChild, which takes its text for XML and loses what stands behind an "&".
    if (xmlNewTextChild(parent, nullptr, Chars(name), Chars(text.c_str())) == nullptr)
        throw std::bad_alloc();
}

void AddChild(xmlNode* parent, xmlNode* child)
{
    if (child == nullptr)
        throw std::bad_alloc();
    xmlAddChild(parent, child);
}

std::string TextOfValue(double value)
{
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), end.ptr};
}

std::string DumpDocument(xmlNode* root, const char* version)
{
    if (root == nullptr)
        return {};
    const Document document(xmlNewDoc(Chars("1.0")));
    if (document == nullptr) {
        xmlFreeNode(root);
        return {};
    }
    xmlDocSetRootElement(document.get(), root);
    if (*version != '\0')
        xmlNewProp(root, Chars("version"), Chars(version));
    xmlChar* text = nullptr;
    int length = 0;
    const Indentation indentation;
    xmlDocDumpFormatMemoryEnc(document.get(), &text, &length, "UTF-8", 1);
    const std::unique_ptr<xmlChar, FreeText> owner(text);
    try {
        return text == nullptr ? std::string()
                               : CodePage::AnsiToUtf8(reinterpret_cast<const char*>(text));
    } catch (...) {  // callers are exported, and nothing is thrown at clients
        return {};
    }
}

}  // namespace CapabilitySet::xml
