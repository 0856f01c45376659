// The element types that capability records share: option lists, ranges, defaults, and their flag.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "CapabilitySet/Export.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"

struct _xmlNode;

namespace CapabilitySet
{

/// The flag that every capability record and element begins with: the device announced this
/// setting in a usable form. What counts as usable is told with each type.
class CAPABILITYSET_API CBaseCapability
{
public:
    bool capable = false;

    CBaseCapability() = default;

    [[nodiscard]] bool Capable() const { return capable; }

protected:
    explicit CBaseCapability(bool value) : capable(value) {}

    void SetCapable(bool value) { capable = value; }
};

template <class Option>
struct OptElement;

/// The options of a setting: attributes "opt" and "attri", comma lists in the document's order.
/// Capable when either attribute stands there, be it empty.
template <>
struct CAPABILITYSET_API OptElement<std::string> : CBaseCapability
{
    std::vector<std::string> opt;    ///< entries of "opt"; empty pieces dropped, nothing trimmed
    std::vector<std::string> attri;  ///< entries of "attri"

    OptElement() = default;
    explicit OptElement(_xmlNode* element) { Parse(element); }

    /// Reads the element's attributes; a null element reads nothing.
    void Parse(_xmlNode* element);
};

/// A range of whole numbers with an optional default.
struct CAPABILITYSET_API MinMaxElement : CBaseCapability
{
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

/// The options of a JSON member: its key "@opt". Capable when the key stands there.
struct CAPABILITYSET_API OptJsonElement : CBaseCapability
{
    std::vector<std::string> opt;

    OptJsonElement() = default;
    explicit OptJsonElement(const std::string& text) { Parse(text); }

    /// Reads the member's JSON text; options found are appended to those already there.
    void Parse(const std::string& text);
};

/// The limits of a JSON member, its keys "@min" and "@max", with the status fields beside them.
/// Parse leaves the flag alone.
struct CAPABILITYSET_API MisinfoMinMaxElement : CBaseCapability
{
    JsonStatus status;
    int min = 0;
    int max = 0;

    MisinfoMinMaxElement() = default;
    explicit MisinfoMinMaxElement(const std::string& text) { Parse(text); }

    void Parse(const std::string& text);
};

}  // namespace CapabilitySet
