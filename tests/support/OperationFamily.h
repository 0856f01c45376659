// The families of operations, by the way they ask a device and what they do with its answer.
// SPDX-License-Identifier: Apache-2.0
#pragma once

namespace TestSupport
{

/// Families can be put together.
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
    kRawRoads = kPackage | kManager,  ///< the answer is handed over, not read
    kAllRoads = kXmlRoads | kJsonRoads | kRawRoads
};

}  // namespace TestSupport
