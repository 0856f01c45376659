// The element types that JSON capability records share.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/CBaseCapability.h"
#include "CapabilitySet/Export.h"
#include "CapabilitySet/JsonTARN/JsonStatus.h"

namespace CapabilitySet
{

/// The options of a JSON member: its key "@opt". Capable when the key stands there.
struct CAPABILITYSET_API OptJsonElement : CBaseCapability
{
    std::vector<std::string> opt;

    OptJsonElement() = default;
    explicit OptJsonElement(const std::string& text) { Parse(text); }

    /// Reads the member's JSON text; options found are appended to those already there.
    void Parse(const std::string& text);
};

/// The limits of a JSON member, its keys "@min" and "@max", with the status fields beside them.
/// Parse leaves the flag alone.
struct CAPABILITYSET_API MisinfoMinMaxElement : CBaseCapability
{
    JsonStatus status;
    int min = 0;
    int max = 0;

    MisinfoMinMaxElement() = default;
    explicit MisinfoMinMaxElement(const std::string& text) { Parse(text); }

    void Parse(const std::string& text);
};

}  // namespace CapabilitySet
