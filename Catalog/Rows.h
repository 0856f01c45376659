// How a row of the catalogue is written: a record's name, what it tells, and the query it comes by.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "Catalog/Catalog.h"

// A file of rows is a template over what is made of them: the library makes entries, tests make
// what they need of each record type. A row is
//
//     row(name, description, query, picks...);
//
// `query` is the operation, whose first argument is the record, or `parsed<Record>` where there is
// none. `picks` give the arguments behind the error slot and the user ID; where the user ID does
// not come first, kUser stands in its place among them.

namespace CapabilitySet::catalog
{

/// Stands for the query of a record that is only read from texts.
template <class Record>
struct Parsed
{
};
template <class Record>
inline constexpr Parsed<Record> parsed;

/// Stands for the query of a list of a pan-tilt-zoom channel; `name` is the last part of its path.
template <class List>
struct PtzList
{
    const char* name;
};

/// The record type of a row.
template <class Query>
struct RecordOf;
template <class Result, class Record, class... Arguments>
struct RecordOf<Result (*)(Record&, Arguments...)>
{
    using Type = Record;
};
template <class Record>
struct RecordOf<Parsed<Record>>
{
    using Type = Record;
};
template <class List>
struct RecordOf<PtzList<List>>
{
    using Type = List;
};

/// Takes one argument of a query out of what was asked. `selector` is null for an argument that
/// nobody chooses.
template <class Take>
struct Pick
{
    const char* selector;
    Take take;
};
template <class Take>
Pick(const char*, Take) -> Pick<Take>;

inline constexpr int kFirst = 1;

inline constexpr Pick kUser{nullptr, [](int userID, const Selectors&) { return userID; }};
inline constexpr Pick kChannel{"channel",
                               [](int, const Selectors& s) { return s.channel.value_or(kFirst); }};
inline constexpr Pick kChannels{
    "channels", [](int, const Selectors& s) {
        return s.channels.value_or(std::vector{s.channel.value_or(kFirst)});
    }};
inline constexpr Pick kAudioChannel{
    "audio-channel", [](int, const Selectors& s) { return s.audioChannel.value_or(kFirst); }};
inline constexpr Pick kTalkChannel{
    "talk-channel", [](int, const Selectors& s) { return s.talkChannel.value_or(kFirst); }};
inline constexpr Pick kWall{"wall",
                            [](int, const Selectors& s) { return s.wall.value_or(kFirst); }};
inline constexpr Pick kOutput{"output",
                              [](int, const Selectors& s) { return s.output.value_or(kFirst); }};
inline constexpr Pick kPart{"part", [](int, const Selectors& s) { return s.part.value_or(""); }};
inline constexpr Pick kExtended{"extended", [](int, const Selectors& s) { return s.extended; }};

/// An argument that clients pass and that is not sent to devices.
inline constexpr Pick kUnsentText{nullptr, [](int, const Selectors&) { return std::string(); }};

}  // namespace CapabilitySet::catalog
