// A device that answers every request with a spoiled document.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "Device/DeviceModel.h"

namespace Device
{

/// Makes the profile "hostile", whose answers go through all cases in turn, or "hostile:<case>",
/// which always uses that one. They spoil the answers of the `sound` devices. Returns null and sets
/// `error` to a message if there is no such case.
std::shared_ptr<DeviceModel> MakeHostileModel(const std::string& profile,
                                              std::vector<std::shared_ptr<DeviceModel>> sound,
                                              std::string& error);

/// Whether the name is that of a hostile profile.
bool IsHostileProfile(const std::string& profile);

}  // namespace Device
