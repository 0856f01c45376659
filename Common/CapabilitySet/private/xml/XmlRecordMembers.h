// Defines the members of XmlRecord; a source file instantiates them for its own records.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/XmlRecord.h"
#include "CapabilitySet/private/xml/XmlFields.h"
#include "CapabilitySet/private/xml/XmlWriting.h"

namespace CapabilitySet
{

template <class Record>
void XmlRecord<Record>::Parse(const std::string& text)
{
    xml::ParseDocument(static_cast<Record&>(*this), text, Record::kElement,
                       log::kParsePlace<Record>);
}

template <class Record>
void XmlRecord<Record>::Parse(_xmlNode* element)
{
    xml::ParseNode(static_cast<Record&>(*this), element);
}

template <class Record>
_xmlNode* XmlRecord<Record>::CreateXmlNodePtr() const
{
    return xml::CreateNode(static_cast<const Record&>(*this), Record::kElement);
}

template <class Record>
std::string XmlRecord<Record>::createXml() const
    requires requires { Record::kVersion; }
{
    return xml::DumpDocument(CreateXmlNodePtr(), Record::kVersion);
}

}  // namespace CapabilitySet

/// Instantiates a record's members. Log lines of its Parse name this file.
#define CAPABILITYSET_XML_RECORD(Record) \
    CAPABILITYSET_PARSE_PLACE(Record);   \
    template struct XmlRecord<Record>
