// Writes a record's field list into a JSON object.
// SPDX-License-Identifier: Apache-2.0
#include "CapabilitySet/private/json/JsonWriting.h"

namespace CapabilitySet::json
{

bool PreviousEntries::EntryKey(Json::ArrayIndex entry, const FirstField& like, bool isScalar,
                               ItemKey& key) const
{
    const Json::Value* value = &array_[entry];
    if (wrapper_ != nullptr) {
        if (!value->isObject()) {
            return false;
        }
        value = &MemberOf(*value, wrapper_);
    }
    if (!isScalar) {
        if (!value->isObject()) {
            return false;
        }
        value = like.name == nullptr ? value : &MemberOf(*value, like.name);
    }
    return std::visit(
        [&](const auto& sample) {
            auto read = sample;
            if constexpr (!std::is_same_v<decltype(read), std::monostate>) {
                if (!ReadScalar(*value, read)) {
                    return false;
                }
            }
            key = std::move(read);
            return true;
        },
        like.key);
}

const Json::Value* PreviousEntries::Match(const FirstField& item, bool isScalar)
{
    ItemKey key;
    if (!unmatched_) {
        if (next_ < array_.size() && EntryKey(next_, item, isScalar, key) && key == item.key) {
            return &array_[next_++];
        }
        unmatched_.emplace();
        for (Json::ArrayIndex entry = next_; entry < array_.size(); ++entry) {
            if (EntryKey(entry, item, isScalar, key)) {
                unmatched_->emplace(key, entry);
            }
        }
    }
    auto found = unmatched_->lower_bound({item.key, next_});
    if (found == unmatched_->end() || found->first != item.key) {
        found = unmatched_->lower_bound({item.key, 0});
    }
    if (found == unmatched_->end() || found->first != item.key) {
        return nullptr;
    }
    next_ = found->second + 1;
    unmatched_->erase(found);
    return &array_[next_ - 1];
}

}  // namespace CapabilitySet::json
