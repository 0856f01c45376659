// What a client starts by hand: face snaps, tracking, thermometry, de-icing.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// How faces are snapped by hand.
struct CAPABILITYSET_API ManualFaceSnapCfg : JsonTree<ManualFaceSnapCfg>
{
    ManualFaceSnapCfg() = default;
    explicit ManualFaceSnapCfg(const std::string& text) { Parse(text); }
};

/// Whom to track, by hand.
struct CAPABILITYSET_API ManualPersonArmingTrack : JsonTree<ManualPersonArmingTrack>
{
    static constexpr const char* kKey = "ManualPersonArmingTrack";

    ManualPersonArmingTrack() = default;
    explicit ManualPersonArmingTrack(const std::string& text) { Parse(text); }
};

/// Where to take a temperature, by a click into the picture.
struct CAPABILITYSET_API ManualClickThermometry : JsonTree<ManualClickThermometry>
{
    static constexpr const char* kKey = "ManualClickThermometry";

    ManualClickThermometry() = default;
    explicit ManualClickThermometry(const std::string& text) { Parse(text); }
};

/// How a pan-tilt head is freed of ice.
struct CAPABILITYSET_API ManualPTDeicingCfg : JsonTree<ManualPTDeicingCfg>
{
    ManualPTDeicingCfg() = default;
    explicit ManualPTDeicingCfg(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
