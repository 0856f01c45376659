// The profile folders that are built into the program.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>
#include <string_view>

namespace Device
{

/// One file of a profile, in pieces short enough for every compiler's string literals.
struct EmbeddedFile
{
    std::string_view name;  ///< relative to the profile's folder
    std::span<const std::string_view> pieces;
};

struct EmbeddedProfile
{
    std::string_view name;  ///< the folder's name
    std::span<const EmbeddedFile> files;
};

/// All embedded profiles, sorted by name.
std::span<const EmbeddedProfile* const> EmbeddedProfiles();

}  // namespace Device
