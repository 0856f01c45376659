// The alarm lines of a radar.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/JsonTARN/JsonDocument.h"

namespace CapabilitySet
{

/// All alarm lines.
struct CAPABILITYSET_API AllAlarmLineCfg : JsonDocument<AllAlarmLineCfg>
{
    AllAlarmLineCfg() = default;
    explicit AllAlarmLineCfg(const std::string& text) { Parse(text); }
};

}  // namespace CapabilitySet
