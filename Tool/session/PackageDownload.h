// Data packages of devices, saved as files.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <functional>
#include <string>

#include "PelNetSDK/PelNetSDK.h"
#include "Tool/session/DownloadFile.h"
#include "Tool/session/Report.h"
#include "Tool/session/Talk.h"

namespace Tool
{

/// An operation of the library that hands out a package: an array of `returnedSize` bytes in
/// `outBuffer`, which the caller then owns.
using PackageOperation =
    std::function<bool(tagNET_ORB_XML_CONFIG_OUTPUT& package, unsigned int& error, int userID)>;

/// Downloads a package and puts the file in its place; reports its name and size. Throws, and
/// leaves no file, when it did not come whole, is empty, or is a device's status in its place.
Report Download(Talk& talk, DownloadFile& file, const PackageOperation& operation);

/// The operation for a package at a place that the device names, a path or a URL of its own.
PackageOperation PackageAt(const std::string& url);

}  // namespace Tool
