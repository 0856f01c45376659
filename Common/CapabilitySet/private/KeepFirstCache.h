// A process-wide cache that keeps the first value saved under each key.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <utility>

namespace CapabilitySet
{

/// Keyed by two strings and a number and ordered in that sequence. Never replaces or drops an
/// entry. Not locked: callers must not use it concurrently.
template <class Number, class Value>
class KeepFirstCache
{
public:
    /// True if the key has a value afterwards, whether this or an earlier one; false only if memory
    /// ran out.
    bool Save(const Value& value, const std::string& first, const std::string& second,
              Number number)
    {
        try {
            values_.try_emplace({first, second, number}, value);
            return true;
        } catch (...)  // nothing is thrown at clients
        {
            return false;
        }
    }

    /// Copies the value of a key; false, leaving `value` alone, if there is none.
    bool Get(Value& value, const std::string& first, const std::string& second, Number number) const
    {
        try {
            const auto found = values_.find({first, second, number});
            if (found == values_.end()) {
                return false;
            }
            // The caller must not see a copy that failed halfway.
            Value copy = found->second;
            value = std::move(copy);
            return true;
        } catch (...)  // nothing is thrown at clients
        {
            return false;
        }
    }

private:
    std::map<std::tuple<std::string, std::string, Number>, Value> values_;
};

}  // namespace CapabilitySet
