// Defines the members of AbilityRecord; a source file instantiates them for its own records.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/private/xml/XmlDocument.h"

namespace CapabilitySet
{

template <class Record>
void AbilityRecord<Record>::Parse(const std::string& text)
{
    xml::RootRule rule;
    if constexpr (requires { Record::kRequestRoot; }) {
        rule.alias = Record::kRequestRoot;
    }
    xml::WithRoot(
        text, Record::kRoot, log::kParsePlace<Record>,
        [this](xmlNode* element) { ParseElement(element); }, xml::Form::Plain, rule);
}

}  // namespace CapabilitySet

/// Instantiates a record's members. Log lines of its Parse name this file.
#define CAPABILITYSET_ABILITY_RECORD(Record) \
    CAPABILITYSET_PARSE_PLACE(Record);       \
    template struct AbilityRecord<Record>
