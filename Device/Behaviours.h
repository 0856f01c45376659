// All behaviours of a device.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <vector>

#include "Device/Behaviour.h"
#include "Device/manifest/Profile.h"

namespace Device
{

/// The behaviours of a device with that profile, in the order in which they are asked. They refer
/// to the profile, which must outlive them. Throws StateFault.
std::vector<std::unique_ptr<Behaviour>> MakeBehaviours(const Profile& profile);

}  // namespace Device
