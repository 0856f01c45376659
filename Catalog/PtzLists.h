// The lists of a pan-tilt-zoom channel: where they are fetched and how they are read.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <type_traits>

#include "CapabilitySet/XMLConfig/PTZPresetCfg.h"
#include "Catalog/Catalog.h"

namespace CapabilitySet::catalog
{

/// Whose reader never ends on an item without children.
template <class Record>
concept IsPtzList =
    std::is_same_v<Record, CVelTarnPTZPresetList> ||
    std::is_same_v<Record, CVelTarnPTZPatrolList> || std::is_same_v<Record, CVelTarnPTZPatternList>;

/// Fetches the document of a list; `list` is the last part of its path. True when the device
/// answered.
bool FetchPtzList(const char* list, int userID, int channel, std::string& text,
                  unsigned int& error);

/// Why a text cannot be read as a list of this root; empty when it can.
std::string PtzListProblem(const std::string& text, const char* rootName);

/// Adds the presets' names, which stand in the same document and which another record reads.
RecordNode WithNames(RecordNode presets, const std::string& text);

template <IsPtzList List>
Reading ReadPtzList(const std::string& text)
{
    Reading reading;
    reading.problem = PtzListProblem(text, List::kRoot);
    reading.values = Describe(List::kRoot, reading.problem.empty() ? List(text) : List());
    if constexpr (std::is_same_v<List, CVelTarnPTZPresetList>) {
        reading.values = WithNames(std::move(reading.values), text);
    }
    reading.shown = reading.values;
    return reading;
}

template <IsPtzList List>
Answer AskPtzList(const char* list, int userID, int channel)
{
    Answer answer;
    std::string text;
    answer.answered = FetchPtzList(list, userID, channel, text, answer.error);
    answer.values = ReadPtzList<List>(text).values;
    return answer;
}

}  // namespace CapabilitySet::catalog
