// The flag that capability records and elements begin with.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "CapabilitySet/Export.h"

namespace CapabilitySet
{

/// The flag that every capability record and element begins with: the device announced this
/// setting in a usable form. Each type documents what counts as usable.
class CAPABILITYSET_API CBaseCapability
{
public:
    bool capable = false;

    CBaseCapability() = default;

    [[nodiscard]] bool Capable() const { return capable; }

protected:
    explicit CBaseCapability(bool value) : capable(value) {}

    void SetCapable(bool value) { capable = value; }
};

}  // namespace CapabilitySet
