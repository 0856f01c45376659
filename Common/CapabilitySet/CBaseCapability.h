// The flag that capability records and elements begin with.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// Base of capability records and elements: tells whether the device announced the setting in a
/// usable form. Each type says what it counts as usable.
class CAPABILITYSET_API CBaseCapability
{
public:
    bool capable = false;  ///< the setting was announced

    CBaseCapability() = default;

    /// Whether the setting was announced.
    [[nodiscard]] bool Capable() const { return capable; }

protected:
    explicit CBaseCapability(bool value) : capable(value) {}

    void SetCapable(bool value) { capable = value; }
};

}  // namespace CapabilitySet
