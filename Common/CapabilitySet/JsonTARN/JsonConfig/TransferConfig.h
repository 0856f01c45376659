// Transmission equipment: slots of fibre converters, Power over Ethernet.
// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

#include "CapabilitySet/FieldTags.h"
#include "CapabilitySet/JsonRecord.h"

namespace CapabilitySet
{

/// The slots of a fibre converter crate.
struct CAPABILITYSET_API FiberConvertSlotList : JsonTree<FiberConvertSlotList>
{
    FiberConvertSlotList() = default;
    explicit FiberConvertSlotList(const std::string& text) { Parse(text); }
};

/// Power over Ethernet at the ports of a switch.
struct CAPABILITYSET_API PortPoeInfoList : JsonRecord<PortPoeInfoList>
{
    static constexpr const char* kKey = "";

    std::vector<Json::Value> ports;  ///< "PortPOEInfoList" of "PortPOEInfo": one object per port

    PortPoeInfoList() = default;
    explicit PortPoeInfoList(const std::string& text) { Parse(text); }

    template <class Record, class Field>
    static void Fields(Record& r, Field&& field)
    {
        field("PortPOEInfoList", r.ports, as::Wrapped{"PortPOEInfo"});
    }
};

}  // namespace CapabilitySet
