// What a device can record and store.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Recording: schedules, modes, streams, redundancy.
struct CAPABILITYSET_API RecordAbility : AbilityRecord<RecordAbility>
{
    static constexpr const char* kRoot = "RecordAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for the recording functions.
    static bool GetRecordAbility(RecordAbility& out, unsigned int& err, const int userID);
};

/// Direct recording to central storage.
struct CAPABILITYSET_API CVRAbility : AbilityRecord<CVRAbility>
{
    static constexpr const char* kRoot = "CVRAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for the central storage functions.
    static bool GetCVRAbility(CVRAbility& out, unsigned int& err, const int userID);
};

}  // namespace CapabilitySet
