// Elements that fill the fields of any XML record, made from its field list.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <concepts>
#include <cstddef>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "CapabilitySet/private/ParseToSDK.h"
#include "CapabilitySet/private/xml/XmlFields.h"
#include "support/AllRecords.h"

namespace TestSupport
{

namespace as = CapabilitySet::as;
namespace xml = CapabilitySet::xml;

struct Sample
{
    std::string attributes{};
    std::string content{};
};

inline std::string Element(const std::string& name, const Sample& sample)
{
    return "<" + name + sample.attributes + ">" + sample.content + "</" + name + ">";
}

// What an element of each kind holds that is not the default, another value for each number.

template <class Record>
std::string FirstField(int number);

template <std::same_as<bool> Flag>
Sample SampleOf(const Flag& /*member*/, auto... /*how*/)
{
    return {" opt='true'", "true"};
}

template <class Number>
    requires(std::is_arithmetic_v<Number> && !std::same_as<Number, bool>)
Sample SampleOf(const Number& /*member*/, int number, auto... /*how*/)
{
    return {{}, std::to_string(number)};
}

inline Sample SampleOf(const std::string& /*member*/, int number, auto... /*how*/)
{
    return {{}, "text " + std::to_string(number)};
}

inline Sample SampleOf(const CapabilitySet::OptElement<std::string>& /*member*/, int number,
                       auto... /*how*/)
{
    return {" opt='a,b" + std::to_string(number) + "'", {}};
}

inline Sample SampleOf(const CapabilitySet::MinMaxElement& /*member*/, int number,
                       as::Attributes /*how*/)
{
    return {" min='0' max='" + std::to_string(number) + "'", {}};
}

inline Sample SampleOf(const CapabilitySet::MinMaxElement& /*member*/, int number, auto... /*how*/)
{
    return {{}, "<Min>0</Min><Max>" + std::to_string(number) + "</Max>"};
}

inline Sample SampleOf(const std::vector<int>& /*member*/, int number, as::Codes how)
{
    const auto& entries = how.table.entries;
    const auto entry = static_cast<std::size_t>(number) % entries.size();
    return {" opt='" + std::string(entries[entry].option) + "'", {}};
}

inline Sample SampleOf(const std::vector<CapabilitySet::AlarmHandleType::HandleType>& /*member*/,
                       int /*number*/, as::HandleTypes /*how*/)
{
    return {" opt='audio'", {}};
}

template <CapabilitySet::HasFields Record>
Sample SampleOf(const Record& /*member*/, int number, auto... /*how*/)
{
    return {{}, FirstField<Record>(number)};
}

template <class Item>
Sample SampleOf(const std::shared_ptr<Item>& /*member*/, int number)
{
    return {{}, FirstField<Item>(number)};
}

template <class Item>
Sample SampleOf(const std::vector<Item>& /*member*/, int number, as::Repeated /*how*/)
{
    return SampleOf(Item(), number);
}

template <class Item>
Sample SampleOf(const std::vector<Item>& /*member*/, int number, as::Items how)
{
    return {{}, Element(how.item, SampleOf(Item(), number))};
}

template <class Record>
std::vector<FieldLayout> LayoutOf(int number)
{
    std::vector<FieldLayout> fields;
    Record record;
    Record::Fields(record, [&](const char* name, auto& member, auto... how) {
        const auto offset =
            reinterpret_cast<const char*>(&member) - reinterpret_cast<const char*>(&record);
        constexpr bool kIsMarker = (std::is_same_v<decltype(how), as::Marker> || ...);
        // "485SlotNo" is no name that a parsed document can hold.
        const bool isLegal = *name < '0' || *name > '9';
        const Sample sample = SampleOf(member, number++, how...);
        fields.push_back({name, isLegal ? Element(name, sample) : std::string(), !kIsMarker,
                          static_cast<std::size_t>(offset), sizeof member,
                          alignof(decltype(member))});
    });
    return fields;
}

/// All elements of a record, in its order.
template <class Record>
std::string AllFields()
{
    std::string elements;
    for (const FieldLayout& field : LayoutOf<Record>(11)) {
        elements += field.element;
    }
    return elements;
}

template <class Record>
std::string FirstField(int number)
{
    return LayoutOf<Record>(number).front().element;
}

}  // namespace TestSupport
