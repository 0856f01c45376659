// The element types that capability records share: option lists, ranges, defaults, and their flag.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <vector>

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"
#include "CapabilitySet/JsonTARN/JsonElements.h"
#include "CapabilitySet/OptionTypes.h"

struct _xmlNode;

namespace CapabilitySet
{

/// A range of whole numbers with an optional default.
struct CAPABILITYSET_API MinMaxElement : CBaseCapability
{
    static constexpr bool kParseTakesFirstChild = true;

    unsigned int min = 0;
    unsigned int max = 0;
    bool hasDefault = false;  ///< a default was announced
    unsigned int def = 0;

    MinMaxElement() = default;
    explicit MinMaxElement(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the children "Min", "Max" and "Default" from the element's first child on. Capable
    /// when both bounds hold text; only then a default is looked for.
    void Parse(_xmlNode* firstChild);

    /// Reads the element's attributes "min" and "max". Capable when both hold text and are not
    /// both zero.
    void ParseProp(_xmlNode* element);
};

/// A range in the attributes "min" and "max". Capable when both hold text, zeros included.
struct CAPABILITYSET_API MinMaxPropElement : CBaseCapability
{
    unsigned int min = 0;
    unsigned int max = 0;

    MinMaxPropElement() = default;
    // Kept: clients rely on this constructor reading nothing.
    explicit MinMaxPropElement(_xmlNode* /*element*/) {}

    void Parse(_xmlNode* element);
};

/// A list of whole numbers in a child "Range". Capable when the list is not empty.
struct CAPABILITYSET_API RangeElement : CBaseCapability
{
    static constexpr bool kParseTakesFirstChild = true;

    std::vector<int> range;
    bool hasDefault = false;
    unsigned int def = 0;

    RangeElement() = default;
    explicit RangeElement(_xmlNode* start) { Parse(start); }

    /// Looks for "Range" from `start` on. A default is taken only when `start` itself is a
    /// "Default" element.
    void Parse(_xmlNode* start);
};

/// A range given by its bounds, by a list, or by both. Capable when either part is.
struct CAPABILITYSET_API MinMaxOrRangeElement : CBaseCapability
{
    static constexpr bool kParseTakesFirstChild = true;

    MinMaxElement minMax;
    RangeElement range;  ///< never carries a default

    MinMaxOrRangeElement() = default;
    explicit MinMaxOrRangeElement(_xmlNode* firstChild) { Parse(firstChild); }

    void Parse(_xmlNode* firstChild);
};

/// A default value; the record that owns it fills it.
struct CAPABILITYSET_API DefaultElement : CBaseCapability
{
    std::int32_t value = 0;

    void SetCapable() { capable = true; }
};

}  // namespace CapabilitySet
