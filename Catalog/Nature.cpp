// What a record's members are by nature: one table.
// SPDX-License-Identifier: Apache-2.0
#include "Catalog/Nature.h"

#include <utility>

#include "Catalog/Natures.h"

namespace CapabilitySet::catalog
{
namespace
{

/// Whether `path` ends in the names of `member`.
bool EndsIn(std::string_view path, std::string_view member)
{
    return path.ends_with(member) &&
           (path.size() == member.size() || path[path.size() - member.size() - 1] == '/');
}

}  // namespace

Nature NatureOf(std::string_view record, std::string_view path)
{
    const MemberNature* best = nullptr;
    const auto rank = [](const MemberNature& each) {
        return std::pair(!each.record.empty(), each.member.size());
    };
    for (const MemberNature& each : kNatures) {
        if ((each.record.empty() || each.record == record) && EndsIn(path, each.member) &&
            (best == nullptr || rank(each) > rank(*best))) {
            best = &each;
        }
    }
    return best == nullptr ? Nature::Plain : best->nature;
}

}  // namespace CapabilitySet::catalog
