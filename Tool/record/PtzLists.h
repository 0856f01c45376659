// The lists of a pan-tilt-zoom channel: where they are fetched and how they are read.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <type_traits>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "Tool/Failure.h"
#include "Tool/record/XmlReadingReport.h"

namespace Tool
{

/// `list` is "presets", "patrols" or "patterns".
inline std::string PtzListPath(int protocolChannel, const std::string& list)
{
    return "/TARN/PTZCtrl/channels/" + std::to_string(protocolChannel) + "/" + list;
}

/// The names of presets stand in the same document, and another record reads them.
CapabilitySet::RecordNode WithNames(CapabilitySet::RecordNode presets, const std::string& text);

/// Why a list cannot be read; the readers would not come back from an item without children.
std::string PtzListProblem(const std::string& text, const char* rootName);

/// Reads a list; throws a failure when the text is none.
template <class List>
CapabilitySet::RecordNode ReadPtzList(const std::string& name, const std::string& text)
{
    if (const std::string problem = PtzListProblem(text, List::kRoot); !problem.empty()) {
        throw Failure("the device's document cannot be read as " + name + ": " + problem);
    }
    CapabilitySet::RecordNode node = CapabilitySet::Describe(name, List(text));
    if constexpr (std::is_same_v<List, CapabilitySet::CVelTarnPTZPresetList>) {
        node = WithNames(std::move(node), text);
    }
    return node;
}

}  // namespace Tool
