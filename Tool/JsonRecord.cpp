// JSON records as trees: their own members, and what else the device said.
// SPDX-License-Identifier: Apache-2.0
#include "JsonRecord.h"

#include <algorithm>

namespace Tool
{

using CapabilitySet::RecordNode;

void AddUnlisted(RecordNode& record, const Json::Value& root)
{
    if (!root.isObject()) {
        if (!root.isNull()) {
            record.children.push_back(CapabilitySet::tree::Node("(whole)", root));
        }
        return;
    }
    for (auto each = root.begin(); each != root.end(); ++each) {
        const std::string name = each.name();
        if (std::ranges::find(record.children, name, &RecordNode::name) == record.children.end()) {
            record.children.push_back(CapabilitySet::tree::Node(name, *each));
        }
    }
}

}  // namespace Tool
