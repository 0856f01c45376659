// Capabilities of fibre converters and of switch ports.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// Fibre converters in a crate.
struct CAPABILITYSET_API FiberConvertCap : JsonRecord<FiberConvertCap>
{
    static constexpr const char* kKey = "FiberConvertCap";

    bool isSupportCrateSlotStatus = false;  ///< reports the state of the slots

    FiberConvertCap() = default;
    explicit FiberConvertCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSupportCrateSlotStatus", r.isSupportCrateSlotStatus);
    }
};

/// Power over Ethernet at one port.
struct CAPABILITYSET_API PortPoeInfoCap : JsonTree<PortPoeInfoCap>
{
    PortPoeInfoCap() = default;
    explicit PortPoeInfoCap(const std::string& text) { Parse(text); }
};

/// Power over Ethernet at the ports of a switch.
struct CAPABILITYSET_API PortPoeInfoListCap : JsonRecord<PortPoeInfoListCap>
{
    static constexpr const char* kKey = "PortPOEInfoListCap";

    std::string PortPOEInfo;  ///< the member as styled JSON text; empty if it is missing
    PortPoeInfoCap port;      ///< the same, parsed; key "PortPOEInfo"

    PortPoeInfoListCap() = default;
    explicit PortPoeInfoListCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PortPOEInfo", r.PortPOEInfo, as::styledText);
        field("PortPOEInfo", r.port);
    }
};

}  // namespace CapabilitySet
