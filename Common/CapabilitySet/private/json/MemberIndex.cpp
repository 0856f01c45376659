// Finds all fields of a record in one pass over the members of a JSON object.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/json/MemberIndex.h"

#include <algorithm>

#include "CapabilitySet/private/json/JsonReading.h"

namespace CapabilitySet::json
{

void MemberIndex::Finish()
{
    std::sort(fields_.begin(), fields_.end(),
              [](const Field& a, const Field& b) { return a.name < b.name; });
}

MemberMatches::MemberMatches(const MemberIndex& index, const Json::Value& object)
{
    const std::size_t size = index.fields_.size();
    matches_ = inline_.data();
    if (size > kInline) {
        more_.resize(size);
        matches_ = more_.data();
    }
    std::fill_n(matches_, size, nullptr);
    if (!object.isObject()) {
        RequireObject(object);
        return;
    }
    const auto end = object.end();
    auto field = index.fields_.begin();
    for (auto member = object.begin(); member != end; ++member) {
        const char* nameEnd = nullptr;
        const char* const nameBegin = member.memberName(&nameEnd);
        const std::string_view name(nameBegin, static_cast<std::size_t>(nameEnd - nameBegin));
        int order = 1;
        while (field != index.fields_.end() && (order = field->name.compare(name)) <= 0) {
            if (order == 0) {
                matches_[field->place] = &*member;
            }
            ++field;
        }
        if (field == index.fields_.end()) {
            return;
        }
    }
}

}  // namespace CapabilitySet::json
