// Field lists: which types have one, and the tags that say how a field is read.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace CapabilitySet
{

struct OptionCodes;

/// A record, as opposed to a value or a shared element type: a type with a field list.
template <class Type>
concept HasFields = requires(const Type& r) { Type::Fields(r, [](auto&&... /*field*/) {}); };

namespace as
{

/// Read as the type says; the same as no tag.
struct Plain
{
};
inline constexpr Plain plain;

/// A range in the element's attributes instead of its children.
struct Attributes
{
};
inline constexpr Attributes attributes;

/// A flag that is true if the element exists, whatever it contains.
struct Presence
{
};
inline constexpr Presence presence;

/// As Presence, but the element does not make its record valid.
struct Marker
{
};
inline constexpr Marker marker;

/// A flag in an option list: set from "opt" if that has exactly one entry, else unchanged.
struct EnabledFlag
{
};
inline constexpr EnabledFlag enabledFlag;

/// A list of all elements of this name among the record's children.
struct Repeated
{
};
inline constexpr Repeated repeated;

/// A list wrapped in an element of its own: the children named `item`.
struct Items
{
    const char* item;  ///< name of the elements in the list
};

/// A number that does not make its record valid.
struct Quiet
{
};
inline constexpr Quiet quiet;

/// A flag in an option list: whether the first entry of "opt" is "true".
struct FirstOption
{
};
inline constexpr FirstOption firstOption;

/// A flag that is true only for the text "true".
struct TextFlag
{
};
inline constexpr TextFlag textFlag;

/// A flag for the texts "true" and "false"; any other text leaves it unchanged.
struct TrueOrFalse
{
};
inline constexpr TrueOrFalse trueOrFalse;

/// Options converted to the codes of a table.
struct Codes
{
    const OptionCodes& table;  ///< strings and their codes
};

/// Alarm handling options, converted to AlarmHandleType values.
struct HandleTypes
{
    bool withAlarmLogin;  ///< ask the device of the alarm query in progress for FTP upload
};
inline constexpr HandleTypes handleTypes{false};
inline constexpr HandleTypes handleTypesOfLogin{true};

/// A JSON array of objects that each hold the item under `key`.
struct Wrapped
{
    const char* key;  ///< key of the item in each object
};

/// A JSON value of any kind, kept as its styled text.
struct StyledText
{
};
inline constexpr StyledText styledText;

/// A number that JSON documents may hold as decimal text.
struct DecimalText
{
};
inline constexpr DecimalText decimalText;

/// A value with a companion flag that is set when the value is read.
template <class Flag>
struct Noted
{
    Flag& flag;  ///< the companion flag
};
template <class Flag>
Noted(Flag&) -> Noted<Flag>;

}  // namespace as
}  // namespace CapabilitySet
