// Data packages that a device offers at a path.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/Export.h"
#include "PelNetSDK/PelNetSDK.h"

namespace CapabilitySet
{

/// Downloads what stands at a path of the device, "/TARN/...", as the URL of a finished package
/// gives it. Request: "GET <path>\r\n". Ownership and errors are those of the packages of
/// JsonConfigApp: on success the client deletes the array in `out.outBuffer`; on failure `out` is
/// left alone.
CAPABILITYSET_API bool DownloadPackageAt(tagNET_ORB_XML_CONFIG_OUTPUT& out, const std::string& path,
                                         unsigned int& error, int userID);

}  // namespace CapabilitySet
