// What records have that are written to devices and read back from them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"

struct _xmlNode;

namespace CapabilitySet
{

/// A record whose element is named `Record::kElement` and whose field list is read and written
/// alike: what it writes, it reads back as the same record. Capable when an element was read. A
/// record that is sent as a document of its own states the version it is sent in, `kVersion`.
template <class Record>
struct CAPABILITYSET_API XmlRecord : CBaseCapability
{
    /// Reads a document whose root is the record's element; an empty text reads nothing, a
    /// malformed or foreign document leaves the record as it was after one error line.
    void Parse(const std::string& text);
    /// Reads the record's element; null reads nothing.
    void Parse(_xmlNode* element);

    /// The record as an unlinked element with every member written, set or not. The caller owns it
    /// until it is linked into a parent or a document. Null when memory ran out.
    [[nodiscard]] _xmlNode* CreateXmlNodePtr() const;

    /// The record as a request body whose root carries the record's version, unless that is empty.
    /// Texts are expected in the client's ANSI code page, up to their first NUL; characters that no
    /// XML document can hold are dropped. Empty when memory ran out.
    [[nodiscard]] std::string createXml() const
        requires requires { Record::kVersion; };
};

}  // namespace CapabilitySet
