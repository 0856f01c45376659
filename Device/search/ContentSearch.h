// Searches recorded content.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "Device/Behaviour.h"
#include "Device/manifest/Profile.h"

namespace Device
{

/// Throws StateFault if there are too many recordings.
std::unique_ptr<Behaviour> MakeContentSearch(const Profile& profile);

}  // namespace Device
