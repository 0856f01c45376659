// The catalogue of records: all rows in one order.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/Catalog.h"

#include <algorithm>

#include "Catalog/Sections.h"

namespace CapabilitySet::catalog
{
namespace
{

std::vector<RecordEntry> MakeEntries()
{
    std::vector<RecordEntry> entries;
    AddAbilities(entries);
    AddEvents(entries);
    AddSettings(entries);
    AddJsonRecords(entries);
    AddJsonBodies(entries);
    // Stable: rows stay in their order, those that can be asked for first.
    std::ranges::stable_partition(
        entries, [](const RecordEntry& entry) { return static_cast<bool>(entry.ask); });
    return entries;
}

/// ASCII, whatever the client's locale.
bool SameIgnoringCase(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::ranges::equal(a, b, {}, lower, lower);
}

}  // namespace

std::span<const RecordEntry> AllRecords()
{
    static const std::vector<RecordEntry> records = MakeEntries();
    return records;
}

const RecordEntry* FindRecord(std::string_view name)
{
    const auto records = AllRecords();
    const auto found = std::ranges::find_if(
        records, [name](const RecordEntry& each) { return SameIgnoringCase(each.name, name); });
    return found == records.end() ? nullptr : &*found;
}

}  // namespace CapabilitySet::catalog
