// Searches that run in the device: tasks with progress, results and packages.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "Device/Behaviour.h"
#include "Device/manifest/Profile.h"

namespace Device
{

/// Returns null if the profile has no search tasks. Throws StateFault.
std::unique_ptr<Behaviour> MakeSearchTasks(const Profile& profile);

}  // namespace Device
