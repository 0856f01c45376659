// A parsed XML document, and the one way in which the library parses one.
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
    Plain,     ///< the encoding is the document's own, blank texts stay in the tree
    BlankFree  ///< UTF-8 whatever the document declares, blank texts removed
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

/// Parses a text up to its first NUL. Silent; touches and obeys none of the client's libxml2
/// defaults and handlers; loads nothing from elsewhere; refuses declared entities and elements of
/// more than 1,000 attributes. Null and a filled `problem` when the text is no document. Throws
/// std::bad_alloc.
Document ParseText(const std::string& text, Form form, Problem& problem);

/// Which root a record accepts besides its own, and what it logs when there is none.
struct RootRule
{
    const char* alias = nullptr;  ///< another name that is accepted
    const char* prefix = "";      ///< before each message
    const char* document = "";    ///< names the document before "XML" in the line on a wrong root
    bool logsMismatch = true;     ///< whether a wrong root is logged at all
};

/// Parses `text`, checks its root's name, and hands the root to `read`. An empty text is a silent
/// no-op; every failure is one error line. Nothing is thrown.
template <class Read>
void WithRoot(const std::string& text, const char* rootName, const log::Place& place, Read&& read,
              Form form = Form::Plain, const RootRule& rule = {});

/// The part of WithRoot that does not depend on the reader: the document, its root in `root`, or
/// null after the line that says why.
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
