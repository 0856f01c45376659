// Base of records that are written to devices as XML and read back.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"

struct _xmlNode;

namespace CapabilitySet
{

/// A record whose element is named `Record::kElement`. One field list reads and writes it, so what
/// it writes it reads back as the same record. Capable when an element was read. `kVersion` is the
/// version of the document that a record sent on its own is written in.
template <class Record>
struct CAPABILITYSET_API XmlRecord : CBaseCapability
{
    /// Reads a document whose root is the record's element.
    void Parse(const std::string& text);
    /// Reads the record's element; null reads nothing.
    void Parse(_xmlNode* element);

    /// The record as an unlinked element, every member written whether set or not. The caller owns
    /// it until it links it into a parent or a document. Null when memory ran out.
    [[nodiscard]] _xmlNode* CreateXmlNodePtr() const;

    /// The record as a request body; the root gets a "version" attribute unless the version is
    /// empty. Texts are taken to be in the client's ANSI code page and end at their first NUL;
    /// characters that XML cannot hold are dropped. Empty when memory ran out.
    [[nodiscard]] std::string createXml() const
        requires requires { Record::kVersion; };
};

}  // namespace CapabilitySet
