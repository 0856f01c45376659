// Abilities of decoders, video walls and video platforms. Queries.h describes the queries.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/AbilityDocument.h"

namespace CapabilitySet
{

/// Decoding channels and display outputs.
struct CAPABILITYSET_API DecoderAbility : AbilityRecord<DecoderAbility>
{
    static constexpr const char* kRoot = "DecoderAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 609, DecoderAbility.
    static bool GetDecoderAbility(DecoderAbility& out, unsigned int& err, const int userID);
};

/// Windows, layouts and scenes of a video wall.
struct CAPABILITYSET_API WallAbility : AbilityRecord<WallAbility>
{
    static constexpr const char* kRoot = "WallAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 530, WallAbility with the children wallNO {wall} and channelNO {output}, the
    /// device's numbers of the wall and its output.
    static bool GetWallAbility(WallAbility& out, unsigned int& err, const int userID,
                               const unsigned int wall, const unsigned int output);
};

/// Subsystems of a video platform.
struct CAPABILITYSET_API VideoPlatformAbility : AbilityRecord<VideoPlatformAbility>
{
    static constexpr const char* kRoot = "VideoPlatformAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, VideoPlatformAbility/{part}, an empty element. Without a part, all are
    /// asked for.
    static bool GetVideoPlatformAbility(VideoPlatformAbility& out, unsigned int& err,
                                        const int userID, const std::string& part);
};

/// The encoding subsystem of a video platform.
struct CAPABILITYSET_API CodeSubSystemAbility : AbilityRecord<CodeSubSystemAbility>
{
    static constexpr const char* kRoot = "CodeSubSystemAbility";
    static constexpr const char* kRequestRoot = "VideoPlatformAbility";

    using AbilityRecord::AbilityRecord;

    /// Device ability 17, VideoPlatformAbility/channelNO. `deviceType` is not sent.
    static bool GetCodeSubSystemAbility(CodeSubSystemAbility& out, unsigned int& err,
                                        const int userID, const unsigned int channel,
                                        const std::string& deviceType);
};

}  // namespace CapabilitySet
