// Every record type of the catalogue in one list.
// SPDX-License-Identifier: Apache-2.0
#include "support/AllRecords.h"

#include <algorithm>
#include <stdexcept>

namespace TestSupport
{

void AddAbilityTypes(std::vector<RecordClass>& types);
void AddEventTypes(std::vector<RecordClass>& types);
void AddSettingTypes(std::vector<RecordClass>& types);
void AddJsonTypes(std::vector<RecordClass>& types);
void AddJsonBodyTypes(std::vector<RecordClass>& types);

std::span<const RecordClass> AllRecordTypes()
{
    static const std::vector<RecordClass> all = [] {
        std::vector<RecordClass> types;
        AddAbilityTypes(types);
        AddEventTypes(types);
        AddSettingTypes(types);
        AddJsonTypes(types);
        AddJsonBodyTypes(types);
        return types;
    }();
    return all;
}

const RecordClass& RecordTypeNamed(const std::string& name)
{
    const auto found = std::ranges::find(AllRecordTypes(), name, &RecordClass::name);
    if (found == AllRecordTypes().end()) {
        throw std::invalid_argument("no record type is named " + name);
    }
    return *found;
}

}  // namespace TestSupport
