// What a device can decode and show: decoders, video walls, video platforms.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

// How every query below behaves: docs/errors.md tells the error numbers. `out` is reset first and
// stays at its defaults on failure; true means that the device answered. Every
// query may be called from any thread.

/// Decoding channels and display outputs.
struct CAPABILITYSET_API DecoderAbility : AbilityRecord<DecoderAbility>
{
    static constexpr const char* kRoot = "DecoderAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for the decoding functions.
    static bool GetDecoderAbility(DecoderAbility& out, unsigned int& err, const int userID);
};

/// Windows, layouts and scenes of a video wall.
struct CAPABILITYSET_API WallAbility : AbilityRecord<WallAbility>
{
    static constexpr const char* kRoot = "WallAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a wall and one of its outputs.
    static bool GetWallAbility(WallAbility& out, unsigned int& err, const int userID,
                               const unsigned int wall, const unsigned int output);
};

/// Subsystems of a video platform.
struct CAPABILITYSET_API VideoPlatformAbility : AbilityRecord<VideoPlatformAbility>
{
    static constexpr const char* kRoot = "VideoPlatformAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for one part by its element name; an empty one asks for all.
    static bool GetVideoPlatformAbility(VideoPlatformAbility& out, unsigned int& err,
                                        const int userID, const std::string& part);
};

/// The encoding subsystem of a video platform.
struct CAPABILITYSET_API CodeSubSystemAbility : AbilityRecord<CodeSubSystemAbility>
{
    static constexpr const char* kRoot = "CodeSubSystemAbility";

    using AbilityRecord::AbilityRecord;

    /// Asks for a channel of the subsystem; the device type is not sent.
    static bool GetCodeSubSystemAbility(CodeSubSystemAbility& out, unsigned int& err,
                                        const int userID, const unsigned int channel,
                                        const std::string& deviceType);
};

}  // namespace CapabilitySet
