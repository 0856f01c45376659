// What a record can be asked for: the selectors that people give as options.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace Tool
{

/// The options as they were given; what was not given has a default where it is picked.
struct Selectors
{
    std::optional<int> channel;
    std::optional<std::vector<int>> channels;
    std::optional<int> audioChannel;
    std::optional<int> talkChannel;
    std::optional<int> wall;
    std::optional<int> output;
    std::optional<std::string> part;
    bool extended = false;
};

/// Takes one argument of a query out of the selectors. `option` is the option's name on the command
/// line, empty for an argument that nobody chooses.
template <class Take>
struct Pick
{
    const char* option;
    Take take;
};

template <class Take>
Pick(const char*, Take) -> Pick<Take>;

inline constexpr int kFirst = 1;

inline constexpr Pick kChannel{"--channel",
                               [](const Selectors& s) { return s.channel.value_or(kFirst); }};
inline constexpr Pick kChannels{
    "--channels", [](const Selectors& s) {
        return s.channels.value_or(std::vector{s.channel.value_or(kFirst)});
    }};
inline constexpr Pick kAudioChannel{
    "--audio-channel", [](const Selectors& s) { return s.audioChannel.value_or(kFirst); }};
inline constexpr Pick kTalkChannel{
    "--talk-channel", [](const Selectors& s) { return s.talkChannel.value_or(kFirst); }};
inline constexpr Pick kWall{"--wall", [](const Selectors& s) { return s.wall.value_or(kFirst); }};
inline constexpr Pick kOutput{"--output",
                              [](const Selectors& s) { return s.output.value_or(kFirst); }};
inline constexpr Pick kPart{"--part", [](const Selectors& s) { return s.part.value_or(""); }};
inline constexpr Pick kExtended{"--extended", [](const Selectors& s) { return s.extended; }};

/// An argument that clients pass and that is not sent to devices.
inline constexpr Pick kUnsentText{"", [](const Selectors&) { return std::string(); }};

}  // namespace Tool
