// The catalogue of records: how each is asked for, read from a text and explained.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "CapabilitySet/Explain.h"
#include "CapabilitySet/Export.h"
#include "CapabilitySet/RecordTree.h"

namespace CapabilitySet::catalog
{

/// Which part of a device a record is asked for. Each record uses the selectors that its entry
/// names; where one is not set, its default holds.
struct Selectors
{
    std::optional<int> channel{};                ///< "channel": the SDK's number, 1 by default; -1:
                                                 ///< the device as a whole
    std::optional<std::vector<int>> channels{};  ///< "channels": asked for together, by default
                                                 ///< `channel` alone
    std::optional<int> audioChannel{};           ///< "audio-channel": 1 by default
    std::optional<int> talkChannel{};            ///< "talk-channel": of two-way audio, 1 by default
    std::optional<int> wall{};                   ///< "wall": video wall, 1 by default
    std::optional<int> output{};                 ///< "output": of the wall, 1 by default
    std::optional<std::string> part{};           ///< "part": the name of one part's element
    bool extended = false;                       ///< "extended": the extended form
};

/// What asking a device for a record gave.
struct Answer
{
    bool answered = false;   ///< what the operation returned
    unsigned int error = 0;  ///< the SDK's error number when it returned false
    RecordNode values;       ///< the record; its defaults when it was not answered
};

enum class Format
{
    Xml,
    Json
};

/// One record of the library.
struct RecordEntry
{
    std::string name{};
    std::string description{};  ///< one line
    std::string type{};         ///< the record's C++ type, without its namespace
    Format format = Format::Xml;
    std::vector<std::string> selectors{};  ///< the names of those that `ask` uses

    /// Asks a device that is logged in. Empty for a record that no query gets by itself: a request
    /// body, the result of a search, a document that clients fetch themselves.
    std::function<Answer(int userID, const Selectors& selectors)> ask{};
    /// Reads a text as the record and explains what was read. Never hangs, whatever the text.
    std::function<Reading(const std::string& text)> read{};
    /// The record as it is before anything is read into it.
    std::function<RecordNode()> blank{};
};

/// All records, in the order in which they are shown: abilities, settings and states, JSON records,
/// and last those that have no `ask`. May be called from any thread; so may each entry's functions,
/// as the operations behind them allow.
CAPABILITYSET_API std::span<const RecordEntry> AllRecords();

/// The record of that name, in any mixture of cases; null when there is none.
CAPABILITYSET_API const RecordEntry* FindRecord(std::string_view name);

}  // namespace CapabilitySet::catalog
