// The registry of all records: how each is asked for, read from a text, and explained.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "CapabilitySet/RecordTree.h"
#include "Tool/record/Selectors.h"
#include "Tool/record/XmlReadingReport.h"

namespace Tool
{

/// What asking a device for a record gave.
struct Answer
{
    bool answered = false;   ///< what the operation returned
    unsigned int error = 0;  ///< its error number
    CapabilitySet::RecordNode values;
};

/// One record of the library. A row of the registry is made by XmlRow, or by its like for records
/// of another form; everything else follows from the record's type.
struct RecordEntry
{
    std::string name;
    std::string description;           ///< one line
    std::vector<std::string> options;  ///< the selectors it is asked with

    std::function<Answer(int userID, const Selectors& selectors)> ask;
    std::function<Reading(const std::string& text)> read;
};

/// All records, in the order in which they are shown.
std::span<const RecordEntry> AllRecords();

/// The record of that name, whatever its case; null when there is none.
const RecordEntry* FindRecord(std::string_view name);

// Each file of rows has one of these; AllRecords puts them together.
std::vector<RecordEntry> AbilityRows();
std::vector<RecordEntry> SettingRows();
std::vector<RecordEntry> JsonRows();

/// Options of the picks, without the arguments that nobody chooses.
template <class... Picks>
std::vector<std::string> OptionsOf(const Picks&... picks)
{
    std::vector<std::string> options;
    for (const char* option : {picks.option...}) {
        if (*option != '\0') {
            options.emplace_back(option);
        }
    }
    return options;
}

inline std::vector<std::string> OptionsOf()
{
    return {};
}

/// The number of an operation that takes its error slot by value: the thread's last one.
unsigned int LastSdkError();

/// A record that is read from XML, by the operation that asks for it. `Slot` is the operation's
/// error slot, by reference or by value; `picks` give the arguments behind the user ID.
template <class Record, class Slot, class... Arguments, class... Picks>
RecordEntry XmlRow(const char* name, const char* description,
                   bool (*query)(Record&, Slot, int, Arguments...), Picks... picks)
{
    static_assert(sizeof...(Arguments) == sizeof...(Picks),
                  "Give one pick of Selectors.h for each argument behind the user ID.");
    RecordEntry entry;
    entry.name = name;
    entry.description = description;
    entry.options = OptionsOf(picks...);
    entry.ask = [name, query, picks...](int userID, const Selectors& selectors) {
        Answer answer;
        Record record;
        answer.answered =
            query(record, answer.error, userID,
                  static_cast<std::remove_cvref_t<Arguments>>(picks.take(selectors))...);
        if (!answer.answered && !std::is_reference_v<Slot>) {
            answer.error = LastSdkError();
        }
        answer.values = CapabilitySet::Describe(name, record);
        return answer;
    };
    entry.read = [name](const std::string& text) { return ReadXmlRecord<Record>(name, text); };
    return entry;
}

}  // namespace Tool
