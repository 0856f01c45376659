// Nested records as rows of a table.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Rows.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "Tool/record/Values.h"

namespace Tool
{

using CapabilitySet::RecordNode;

namespace
{

/// A list of short values as one text; anything else as it is.
RecordNode Joined(RecordNode node)
{
    const auto isShort = [](const RecordNode& each) { return InOneLine(each).has_value(); };
    if (node.kind == RecordNode::Kind::List && std::ranges::all_of(node.children, isShort)) {
        for (const RecordNode& each : node.children) {
            node.text += (node.text.empty() ? "" : ", ") + each.text;
        }
        node.kind = RecordNode::Kind::Text;
        node.children.clear();
    }
    return node;
}

void MoveUp(const RecordNode& node, RecordNode& row, std::set<std::string>& names)
{
    std::vector<const RecordNode*> nested;
    for (const RecordNode& child : node.children) {
        const bool isList = child.kind == RecordNode::Kind::List;
        if (!child.announced || (isList && child.children.empty()) || IsAttribute(child)) {
            continue;
        }
        if (!isList && !InOneLine(child)) {
            nested.push_back(&child);
            continue;
        }
        const bool isTaken = !names.insert(child.name).second;
        RecordNode moved = Joined(child);
        if (isTaken) {
            // "status" of "Smoke" is the smoke's.
            moved.name = node.children.size() == 1 ? node.name : node.name + "/" + child.name;
        }
        row.children.push_back(std::move(moved));
    }
    // A row's own "status" comes before that of its "Smoke".
    for (const RecordNode* each : nested) {
        MoveUp(*each, row, names);
    }
}

}  // namespace

RecordNode Flattened(const RecordNode& item)
{
    RecordNode row{item.name, RecordNode::Kind::Record, {}, true, {}};
    if (item.children.empty()) {
        return item;
    }
    std::set<std::string> names;
    MoveUp(item, row, names);
    // A device's JSON is in no order: what an item is called comes first.
    std::ranges::stable_partition(row.children, [](const RecordNode& each) {
        return each.name == "id" || each.name == "name";
    });
    return row;
}

}  // namespace Tool
