// What fibre converters and the ports of a network switch can do.
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

    bool isSupportCrateSlotStatus = false;  ///< the state of the slots can be asked for

    FiberConvertCap() = default;
    explicit FiberConvertCap(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("isSupportCrateSlotStatus", r.isSupportCrateSlotStatus);
    }
};

/// Power over Ethernet of one port.
struct CAPABILITYSET_API PortPoeInfoCap : JsonTree<PortPoeInfoCap>
{
    PortPoeInfoCap() = default;
    explicit PortPoeInfoCap(const std::string& text) { Parse(text); }
};

/// Power over Ethernet of a switch's ports.
struct CAPABILITYSET_API PortPoeInfoListCap : JsonRecord<PortPoeInfoListCap>
{
    static constexpr const char* kKey = "PortPOEInfoListCap";

    std::string PortPOEInfo;  ///< the member as styled JSON text; empty when there is none
    PortPoeInfoCap port;      ///< the same, read

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
