// Element types that JSON capability records share.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"

namespace CapabilitySet
{

/// The options of a JSON member, from its key "@opt". Capable when the key is present.
struct CAPABILITYSET_API OptJsonElement : CBaseCapability
{
    std::vector<std::string> opt;  ///< options, in the device's order

    OptJsonElement() = default;
    explicit OptJsonElement(const std::string& text) { Parse(text); }

    /// Reads the member's JSON text. Appends to `opt`. Never throws.
    void Parse(const std::string& text);
};

/// The limits of a JSON member, from its keys "@min" and "@max", and the status fields beside them.
/// Parse does not set the flag.
struct CAPABILITYSET_API MisinfoMinMaxElement : CBaseCapability
{
    JsonStatus status;  ///< status fields beside the limits
    int min = 0;        ///< smallest value allowed, 0 without "@min"
    int max = 0;        ///< largest value allowed, 0 without "@max"

    MisinfoMinMaxElement() = default;
    explicit MisinfoMinMaxElement(const std::string& text) { Parse(text); }

    /// Reads the member's JSON text. Never throws.
    void Parse(const std::string& text);
};

}  // namespace CapabilitySet
