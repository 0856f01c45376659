// Whether two records of a type are the same, flags and kept documents included.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include <json/value.h>

#include "CapabilitySet/AbilityDocument.h"
#include "CapabilitySet/CapabilityElements.h"
#include "CapabilitySet/RecordTree.h"

namespace TestSupport
{

template <class Type>
concept IsValue = std::is_arithmetic_v<Type> || std::is_enum_v<Type> ||
                  std::is_same_v<Type, std::string> || std::is_same_v<Type, Json::Value>;

template <IsValue Value>
bool IsSame(const Value& a, const Value& b)
{
    return a == b;
}

inline bool IsSame(const CapabilitySet::OptElement<std::string>& a,
                   const CapabilitySet::OptElement<std::string>& b)
{
    return a.capable == b.capable && a.opt == b.opt && a.attri == b.attri;
}

inline bool IsSame(const CapabilitySet::MinMaxElement& a, const CapabilitySet::MinMaxElement& b)
{
    return a.capable == b.capable && a.min == b.min && a.max == b.max &&
           a.hasDefault == b.hasDefault && a.def == b.def;
}

inline bool IsSame(const CapabilitySet::OptJsonElement& a, const CapabilitySet::OptJsonElement& b)
{
    return a.capable == b.capable && a.opt == b.opt;
}

template <CapabilitySet::HasFields Record>
bool IsSame(const Record& a, const Record& b);

inline bool IsSame(const CapabilitySet::MisinfoMinMaxElement& a,
                   const CapabilitySet::MisinfoMinMaxElement& b)
{
    return IsSame(a.status, b.status) && a.min == b.min && a.max == b.max;
}

inline bool IsSame(const CapabilitySet::AbilityElement& a, const CapabilitySet::AbilityElement& b);

template <class Item>
bool IsSame(const std::shared_ptr<Item>& a, const std::shared_ptr<Item>& b)
{
    return a == b || (a != nullptr && b != nullptr && IsSame(*a, *b));
}

template <class Item>
bool IsSame(const std::vector<Item>& a, const std::vector<Item>& b)
{
    return std::ranges::equal(a, b, [](const Item& x, const Item& y) { return IsSame(x, y); });
}

inline bool IsSame(const CapabilitySet::AbilityElement& a, const CapabilitySet::AbilityElement& b)
{
    return a.name == b.name && a.text == b.text && a.attributes == b.attributes &&
           IsSame(a.children, b.children);
}

inline bool IsSame(const CapabilitySet::AbilityDocument& a, const CapabilitySet::AbilityDocument& b)
{
    return a.capable == b.capable && IsSame(a.root, b.root);
}

template <CapabilitySet::HasFields Record>
bool IsSame(const Record& a, const Record& b)
{
    bool same = true;
    if constexpr (requires { a.valid; }) {
        same = a.valid == b.valid;
    } else if constexpr (requires { a.capable; }) {
        same = a.capable == b.capable;
    } else if constexpr (requires { a.present; }) {
        same = a.present == b.present;
    }
    if constexpr (requires(const Json::Value& root) { a.root == root; }) {
        same = same && a.root == b.root;
    }
    Record::Fields(a, [&](const char* /*name*/, const auto& member, auto&&... /*how*/) {
        // The other record's member stands where this one's does.
        const auto place =
            reinterpret_cast<const char*>(&member) - reinterpret_cast<const char*>(&a);
        using Member = std::remove_cvref_t<decltype(member)>;
        same = same && IsSame(member, *reinterpret_cast<const Member*>(
                                          reinterpret_cast<const char*>(&b) + place));
    });
    return same;
}

}  // namespace TestSupport
