// The registry of all records.
// SPDX-License-Identifier: Apache-2.0
#include "Tool/record/Records.h"

#include <algorithm>

#include "PelNetSDK/PelNetSDK.h"
#include "Tool/terminal/Text.h"

namespace Tool
{

std::span<const RecordEntry> AllRecords()
{
    static const std::vector<RecordEntry> records = [] {
        std::vector<RecordEntry> all;
        for (auto&& rows : {AbilityRows(), SettingRows(), JsonRows()}) {
            all.insert(all.end(), rows.begin(), rows.end());
        }
        return all;
    }();
    return records;
}

const RecordEntry* FindRecord(std::string_view name)
{
    const auto records = AllRecords();
    const auto found = std::ranges::find_if(
        records, [name](const RecordEntry& each) { return SameIgnoringCase(each.name, name); });
    return found == records.end() ? nullptr : &*found;
}

unsigned int LastSdkError()
{
    return NET_ORB_GetLastError();
}

}  // namespace Tool
