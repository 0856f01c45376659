// Where the files of a profile come from: the program itself or a folder.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Device/manifest/EmbeddedProfiles.h"

namespace Device
{

/// Reads one file of a profile, named relative to its folder. Returns nothing and sets `error` if
/// that is not possible.
using ProfileFiles =
    std::function<std::optional<std::string>(const std::string& name, std::string& error)>;

ProfileFiles FilesOf(const EmbeddedProfile& profile);

/// Reads from a folder that may come from anyone: only regular files beneath it, not through
/// symbolic links, and none larger than kMostProfileFile.
ProfileFiles FilesOfFolder(const std::string& folder);

}  // namespace Device
