// A parsed XML document and the one way the library parses it.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include <libxml/tree.h>

#include "CapabilitySet/private/Log.h"
#include "CapabilitySet/private/xml/XmlReading.h"

namespace CapabilitySet::xml
{

/// How a document is parsed.
enum class Form
{
    Plain,     ///< encoding as declared; blank texts stay in the tree
    BlankFree  ///< always UTF-8; blank texts are removed
};

struct FreeDocument
{
    void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
using Document = std::unique_ptr<xmlDoc, FreeDocument>;

/// Why a document could not be parsed.
struct Problem
{
    int line = 0;
    std::string message;
};

/// Parses a text up to its first NUL. Reports nothing, and neither changes nor obeys the client's
/// libxml2 defaults and handlers. Loads nothing from elsewhere, and refuses declared entities and
/// documents beyond a limit of Limits.h. Returns null and fills `problem` if the text is not a
/// document. Throws std::bad_alloc.
Document ParseText(const std::string& text, Form form, Problem& problem);

/// Which root a record accepts besides its own, and what it logs when there is none.
struct RootRule
{
    const char* alias = nullptr;  ///< another name that is accepted
    const char* prefix = "";      ///< before each message
    const char* document = "";    ///< names the document before "XML" in the line on a wrong root
    bool logsMismatch = true;     ///< whether a wrong root is logged at all
};

/// Parses `text`, checks the name of its root, and passes the root to `read`. Empty text is ignored
/// silently; every failure logs one error line. Never throws.
template <class Read>
void WithRoot(const std::string& text, const char* rootName, const log::Place& place, Read&& read,
              Form form = Form::Plain, const RootRule& rule = {});

/// The part of WithRoot that does not depend on the reader. Returns the document and sets `root`,
/// or returns null after a log line that says why.
Document OpenRoot(const std::string& text, const char* rootName, const log::Place& place, Form form,
                  const RootRule& rule, xmlNode*& root);

template <class Read>
void WithRoot(const std::string& text, const char* rootName, const log::Place& place, Read&& read,
              Form form, const RootRule& rule)
{
    if (text.empty()) {
        return;
    }
    EndAtException([&] {
        xmlNode* root = nullptr;
        if (const Document document = OpenRoot(text, rootName, place, form, rule, root)) {
            read(root);
        }
    });
}

}  // namespace CapabilitySet::xml
