// How a field is read where its type alone does not tell: the third argument of a field list.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace CapabilitySet
{

struct OptionCodes;

namespace as
{

/// What the type itself tells; the same as no tag.
struct Plain
{
};
inline constexpr Plain plain;

/// A range read from the element's attributes instead of its children.
struct Attributes
{
};
inline constexpr Attributes attributes;

/// A flag that is true when the element exists, whatever it holds.
struct Presence
{
};
inline constexpr Presence presence;

/// As presence, but the element does not make its record count as read.
struct Marker
{
};
inline constexpr Marker marker;

/// A flag announced by options: true or false when "opt" holds one entry, else left as it is.
struct EnabledFlag
{
};
inline constexpr EnabledFlag enabledFlag;

/// A list of the elements of this name among the record's own children.
struct Repeated
{
};
inline constexpr Repeated repeated;

/// A list inside an element of its own: the elements named `item` among its children.
struct Items
{
    const char* item;
};

/// A number that is read but does not make its record count as read.
struct Quiet
{
};
inline constexpr Quiet quiet;

/// A flag announced by options: whether the first entry of "opt" is "true".
struct FirstOption
{
};
inline constexpr FirstOption firstOption;

/// A flag that is true for exactly the text "true".
struct TextFlag
{
};
inline constexpr TextFlag textFlag;

/// A flag for the texts "true" and "false"; any other leaves it as it is.
struct TrueOrFalse
{
};
inline constexpr TrueOrFalse trueOrFalse;

/// Options that stand for codes of a table.
struct Codes
{
    const OptionCodes& table;
};

/// Alarm handling options; in the answer to an alarm ability query with that query's login.
struct HandleTypes
{
    bool withAlarmLogin;
};
inline constexpr HandleTypes handleTypes{false};
inline constexpr HandleTypes handleTypesOfLogin{true};

/// A JSON array of objects that each hold the item under this key.
struct Wrapped
{
    const char* key;
};

/// A JSON value of any kind, kept as its styled text.
struct StyledText
{
};
inline constexpr StyledText styledText;

/// A number that JSON documents hold as a text of decimal digits.
struct DecimalText
{
};
inline constexpr DecimalText decimalText;

/// A value with a companion flag that is set when it was read.
template <class Flag>
struct Noted
{
    Flag& flag;
};
template <class Flag>
Noted(Flag&) -> Noted<Flag>;

}  // namespace as
}  // namespace CapabilitySet
