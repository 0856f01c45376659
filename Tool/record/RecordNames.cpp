// Records by the names that people type.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/RecordNames.h"

#include <algorithm>

#include "Tool/Failure.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

const RecordEntry& RecordNamed(const std::string& name)
{
    if (const RecordEntry* const record = FindRecord(name)) {
        return *record;
    }
    std::vector<std::string> names;
    for (const RecordEntry& each : AllRecords()) {
        names.push_back(each.name);
    }
    const std::string nearest = NearestName(name, names);
    throw Failure("there is no record \"" + name + "\"" +
                      (nearest.empty() ? std::string() : "; did you mean " + nearest + "?") +
                      (nearest.empty() ? "; \"capset records\" lists them" : ""),
                  kUsage);
}

std::vector<std::string> OptionsOf(const RecordEntry& record)
{
    std::vector<std::string> options;
    for (const std::string& selector : record.selectors) {
        options.push_back("--" + selector);
    }
    return options;
}

std::vector<const RecordEntry*> RecordsNamed(const std::vector<std::string>& names)
{
    std::vector<const RecordEntry*> records;
    for (const std::string& name : names) {
        const RecordEntry& record = RecordNamed(name);
        if (!record.ask) {
            throw Failure("no query gets " + record.name + "; \"capset parse\" reads a saved one",
                          kUsage);
        }
        records.push_back(&record);
    }
    if (names.empty()) {
        for (const RecordEntry& each : AllRecords()) {
            if (each.ask) {
                records.push_back(&each);
            }
        }
    }
    return records;
}

void CheckOptions(const std::vector<const RecordEntry*>& records,
                  const std::vector<std::string>& options)
{
    std::vector<std::string> names;
    std::ranges::transform(records, std::back_inserter(names), &RecordEntry::name);
    for (const std::string& option : options) {
        const bool used = std::ranges::any_of(records, [&option](const RecordEntry* record) {
            return std::ranges::count(OptionsOf(*record), option) > 0;
        });
        if (!used) {
            throw Failure(option + " selects nothing of " + Joined(names), kUsage);
        }
    }
}

}  // namespace Tool
