// A memory of the process in which the first value saved for a key stays.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace CapabilitySet
{

/// Keyed by two texts and a number, ordered by the first text, then the second, then the number.
/// Grows by one entry a key and never replaces or drops one. No lock: callers serialise its use.
template <class Number, class Value>
class KeepFirstCache
{
public:
    /// True when the key has a value afterwards, this one or an earlier one; false only when
    /// memory ran out.
    bool Save(const Value& value, const std::string& first, const std::string& second,
              Number number)
    {
        try {
            values_.try_emplace({first, second, number}, value);
            return true;
        } catch (...)  // callers are exported, and nothing is thrown at clients
        {
            return false;
        }
    }

    /// Copies the value of a key; false, with `value` left alone, when it has none.
    bool Get(Value& value, const std::string& first, const std::string& second, Number number) const
    {
        try {
            const auto found = values_.find({first, second, number});
            if (found == values_.end()) {
                return false;
            }
            // Copied aside first: a copy that fails halfway must not be seen.
            Value copy = found->second;
            value = std::move(copy);
            return true;
        } catch (...)  // as above
        {
            return false;
        }
    }

private:
    std::map<std::tuple<std::string, std::string, Number>, Value> values_;
};

}  // namespace CapabilitySet
