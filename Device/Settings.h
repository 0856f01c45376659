// Settings: documents that a client reads, replaces and reads back.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "Device/Behaviour.h"
#include "Device/manifest/Profile.h"

namespace Device
{

std::unique_ptr<Behaviour> MakeSettings(const Profile& profile);

}  // namespace Device
