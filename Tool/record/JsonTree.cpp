// JSON records as trees: their own members, and what else the device said.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/JsonTree.h"

#include <set>

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
    // Hostile answers hold members by the ten thousand.
    std::set<std::string> listed;
    for (const RecordNode& child : record.children) {
        listed.insert(child.name);
    }
    for (auto each = root.begin(); each != root.end(); ++each) {
        const std::string name = each.name();
        if (!listed.contains(name)) {
            record.children.push_back(CapabilitySet::tree::Node(name, *each));
        }
    }
}

}  // namespace Tool
