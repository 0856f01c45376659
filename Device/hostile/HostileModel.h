// A device that answers every request with a spoiled document.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>

#include "Device/DeviceModel.h"

namespace Device
{

/// The profiles "hostile", whose answers go through all cases one after another, and
/// "hostile:<case>", whose answers are all of one case. Null and a sentence when there is no such
/// case. The sound documents that it spoils are those of the embedded profiles.
std::shared_ptr<DeviceModel> MakeHostileModel(const std::string& profile, std::string& error);

/// Whether the profile name is one of those.
bool IsHostileProfile(const std::string& profile);

}  // namespace Device
