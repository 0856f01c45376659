// The lists of a pan-tilt-zoom channel: where they are fetched and how they are read.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/PtzLists.h"

#include <algorithm>

namespace Tool
{

using CapabilitySet::RecordNode;

RecordNode WithNames(RecordNode presets, const std::string& text)
{
    const CapabilitySet::CPTZPresetListCfg names(text);
    for (RecordNode& item : presets.children.front().children) {
        const auto id = std::ranges::find(item.children, "id", &RecordNode::name);
        const auto named =
            std::ranges::find(names.presets, id->text, &CapabilitySet::CPTZPresetCfg::id);
        const std::string name = named == names.presets.end() ? "" : named->presetName;
        item.children.insert(id + 1, CapabilitySet::tree::Text("presetName", name));
    }
    return presets;
}

std::string PtzListProblem(const std::string& text, const char* rootName)
{
    std::string problem = XmlProblem(text, rootName);
    if (problem.empty() && CapabilitySet::HasEmptyItem(text)) {
        problem = "it holds an item without children";
    }
    return problem;
}

}  // namespace Tool
