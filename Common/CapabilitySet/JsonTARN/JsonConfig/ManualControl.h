// Functions that a client starts manually: face snaps, tracking, thermometry, de-icing.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// Settings of manual face snaps.
struct CAPABILITYSET_API ManualFaceSnapCfg : JsonTree<ManualFaceSnapCfg>
{
    ManualFaceSnapCfg() = default;
    explicit ManualFaceSnapCfg(const std::string& text) { Parse(text); }
};

/// The person to track.
struct CAPABILITYSET_API ManualPersonArmingTrack : JsonTree<ManualPersonArmingTrack>
{
    static constexpr const char* kKey = "ManualPersonArmingTrack";

    ManualPersonArmingTrack() = default;
    explicit ManualPersonArmingTrack(const std::string& text) { Parse(text); }
};

/// The point in the picture whose temperature to measure.
struct CAPABILITYSET_API ManualClickThermometry : JsonTree<ManualClickThermometry>
{
    static constexpr const char* kKey = "ManualClickThermometry";

    ManualClickThermometry() = default;
    explicit ManualClickThermometry(const std::string& text) { Parse(text); }
};

/// De-icing of a pan-tilt head.
struct CAPABILITYSET_API ManualPTDeicingCfg : JsonTree<ManualPTDeicingCfg>
{
    ManualPTDeicingCfg() = default;
    explicit ManualPTDeicingCfg(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
