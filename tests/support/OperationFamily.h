// Families of operations, by how they ask a device and what they do with its answer.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace TestSupport
{

/// Flags that can be combined.
enum Family : unsigned
{
    kDeviceAbility = 1,
    kStandardAbility = 2,
    kTransparent = 4,
    kJson = 8,
    kAlarmHost = 16,
    kPackage = 32,
    kManager = 64,
    kXmlRoads = kDeviceAbility | kStandardAbility | kTransparent,
    kJsonRoads = kJson | kAlarmHost,
    kRawRoads = kPackage | kManager,  ///< the answer is returned unread
    kAllRoads = kXmlRoads | kJsonRoads | kRawRoads
};

}  // namespace TestSupport
