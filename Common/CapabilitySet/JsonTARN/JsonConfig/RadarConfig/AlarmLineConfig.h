// Alarm lines of a radar.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// All alarm lines.
struct CAPABILITYSET_API AllAlarmLineCfg : JsonTree<AllAlarmLineCfg>
{
    AllAlarmLineCfg() = default;
    explicit AllAlarmLineCfg(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
