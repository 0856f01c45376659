// Element types that capability records share: ranges and defaults.
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

/// A range of whole numbers with an optional default. The unit is that of the setting.
struct CAPABILITYSET_API MinMaxElement : CBaseCapability
{
    static constexpr bool kParseTakesFirstChild = true;

    unsigned int min = 0;     ///< smallest value allowed
    unsigned int max = 0;     ///< largest value allowed
    bool hasDefault = false;  ///< `def` was announced
    unsigned int def = 0;     ///< default value

    MinMaxElement() = default;
    explicit MinMaxElement(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads the children "Min", "Max" and "Default", starting at the element's first child.
    /// Capable when both bounds have text; the default is read only then.
    void Parse(_xmlNode* firstChild);

    /// Reads the attributes "min" and "max" of the element. Capable when both have text and at
    /// least one is not zero.
    void ParseProp(_xmlNode* element);
};

/// A range in the attributes "min" and "max". Capable when both have text, even if both are zero.
struct CAPABILITYSET_API MinMaxPropElement : CBaseCapability
{
    unsigned int min = 0;  ///< smallest value allowed
    unsigned int max = 0;  ///< largest value allowed

    MinMaxPropElement() = default;
    // Kept: clients rely on this constructor reading nothing.
    explicit MinMaxPropElement(_xmlNode* /*element*/) {}

    /// Reads the element's attributes; null reads nothing.
    void Parse(_xmlNode* element);
};

/// A list of whole numbers in a child "Range". Capable when the list is not empty.
struct CAPABILITYSET_API RangeElement : CBaseCapability
{
    static constexpr bool kParseTakesFirstChild = true;

    std::vector<int> range;   ///< values allowed, in document order
    bool hasDefault = false;  ///< `def` was announced
    unsigned int def = 0;     ///< default value

    RangeElement() = default;
    explicit RangeElement(_xmlNode* start) { Parse(start); }

    /// Searches for "Range" from `start` on. The default is read only if `start` itself is a
    /// "Default" element.
    void Parse(_xmlNode* start);
};

/// A range given by its bounds, by a list, or by both. Capable when either part is.
struct CAPABILITYSET_API MinMaxOrRangeElement : CBaseCapability
{
    static constexpr bool kParseTakesFirstChild = true;

    MinMaxElement minMax;  ///< the bounds
    RangeElement range;    ///< the list; never has a default

    MinMaxOrRangeElement() = default;
    explicit MinMaxOrRangeElement(_xmlNode* firstChild) { Parse(firstChild); }

    /// Reads "Min", "Max", "Default" and "Range", starting at the element's first child.
    void Parse(_xmlNode* firstChild);
};

/// A default value, filled by the record that owns it.
struct CAPABILITYSET_API DefaultElement : CBaseCapability
{
    std::int32_t value = 0;  ///< default, in the unit of the setting

    /// Marks the default as announced.
    void SetCapable() { capable = true; }
};

}  // namespace CapabilitySet
