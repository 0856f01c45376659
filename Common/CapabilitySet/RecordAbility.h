// Recording and storage abilities of a device. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Recording: schedules, modes, streams, redundancy.
struct CAPABILITYSET_API RecordAbility : AbilityRecord<RecordAbility>
{
    static constexpr const char* kRoot = "RecordAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, RecordAbility.
    static bool GetRecordAbility(RecordAbility& out, unsigned int& err, const int userID);
};

/// Direct recording to central storage.
struct CAPABILITYSET_API CVRAbility : AbilityRecord<CVRAbility>
{
    static constexpr const char* kRoot = "CVRAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, CVRAbility.
    static bool GetCVRAbility(CVRAbility& out, unsigned int& err, const int userID);
};

}  // namespace CapabilitySet
