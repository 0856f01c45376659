// JSON records as trees: their own members, and what else the device said.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include <json/value.h>

#include "CapabilitySet/RecordTree.h"

namespace Tool
{

/// Adds the members of `root` that the record has no member for.
void AddUnlisted(CapabilitySet::RecordNode& record, const Json::Value& root);

template <class Record>
CapabilitySet::RecordNode DescribeJson(std::string name, const Record& record)
{
    CapabilitySet::RecordNode node = CapabilitySet::Describe(std::move(name), record);
    if constexpr (requires { record.root; }) {
        AddUnlisted(node, record.root);
        node.announced = !record.root.isNull();
    }
    return node;
}

}  // namespace Tool
