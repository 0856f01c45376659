// The basic capability of a device: its hardware, its functions, and the query for them.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/HardwareCapability.h"
#include "CapabilitySet/SoftwareCapability.h"

struct _xmlNode;

namespace CapabilitySet
{

/// The basic ability document of a device, root "BasicCapability".
struct CAPABILITYSET_API BasicCapability
{
    static constexpr const char* kRoot = "BasicCapability";

    bool valid = false;           ///< either part read at least one element
    HardwareCapability hardware;  ///< ports, disks, channels and outputs
    SoftwareCapability software;  ///< functions of the firmware

    BasicCapability() = default;
    explicit BasicCapability(const std::string& text) { Parse(text); }
    explicit BasicCapability(_xmlNode* element) { Parse(element); }

    /// Reads a whole document.
    void Parse(const std::string& text);
    /// Reads the root element.
    void Parse(_xmlNode* element);

    /// Device ability 1, no request XML. True even if the document could not be read: check
    /// `valid`. See Queries.h.
    static bool GetBasicCapability(BasicCapability& out, unsigned int& err, const int userID);

    /// Caches for the process whether the device that two texts of the caller's choice name
    /// supports 3D positioning. The first value saved for a pair is kept. Always returns true. No
    /// lock: the caller must not let cache calls overlap.
    static bool SaveIsSupper3DPTZAbility(bool value, const std::string& first,
                                         const std::string& second);
    /// The cached value. False, with `value` unchanged, if none was saved for the pair.
    static bool GetIsSupper3DPTZAbility(bool& value, const std::string& first,
                                        const std::string& second);

    /// A part makes the record valid only if it is valid itself.
    static constexpr bool kNestedFlagCounts = true;

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("HardwareCapability", r.hardware);
        field("SoftwareCapability", r.software);
    }
};

}  // namespace CapabilitySet
